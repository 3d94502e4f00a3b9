// How the main window is painted, moved, closed and brought forward, and what it watches.

#include "DialogDeviceConnect.h"
#include "FloatButton.h"
#include "HubLog.h"
#include "HubTray.h"
#include "KeyState.h"
#include "Look.h"
#include "MainWindow.h"
#include "MessageBox.h"
#include "ModuleLangMenu.h"
#include "Session.h"
#include "SiblingHost.h"
#include "SiblingOperations.h"
#include "Topmost.h"
#include "ui_MainWindow.h"

#include <cmath>
#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>

using namespace std::chrono_literals;

namespace {

constexpr auto FramingTime = 50ms;
constexpr auto LeaveDelay = 100ms;
constexpr auto LockedIdleLimit = 301s;
constexpr auto LogoPressPeriod = 300ms;
constexpr int LogoPressesForConsole = 2;

constexpr QRect LogoRect(30, 25, 136, 40);
constexpr QRect SecondBrandLogoRect(30, 25, 315, 40);
constexpr QRect SecondBrandSplashLogoRect(30, 40, 427, 55);
constexpr int DragAreaHeight = 80;
constexpr qreal WindowRadius = 20;
constexpr QColor OutlineColor(0x87, 0xCE, 0xEB);
constexpr int SplashTextHeight = 100;
constexpr int SplashTextPoints = 22;

constexpr int ArrowSize = 48;
constexpr int ArrowDrop = 50;
constexpr int PrevLeft = 20;
constexpr int NextFromRight = 70;
constexpr QPoint ReturnOffset(15, 5);
constexpr QSize ReturnSize(80, 32);
constexpr int CardsForArrows = 3;

/// Rounds half away from zero and keeps within what a window position can be.
int rounded(double value)
{
    constexpr double Limit = std::numeric_limits<int>::max();
    return int(std::clamp(std::round(value), -Limit - 1, Limit));
}

} // namespace

void MainWindow::watchEscape()
{
    // A dialog has its own use for the key, and a calibration wants it pressed.
    if (!keyTesting && !QApplication::activeModalWidget() && platform::isKeyDown(platform::Key::Escape)) {
        qCDebug(lcHub) << "OrbeReturn 0";
        siblings->requestReturn();
        ui->stackedWidget->setCurrentIndex(SiblingHost::CardPage);
    }
}

void MainWindow::watchEmptiness()
{
    const bool empty = cardLayout->isEmpty();
    if (empty == cardsWereEmpty)
        return;
    cardsWereEmpty = empty;
    ui->stackedWidget->setHidden(empty);
    ui->labelLogo->setHidden(empty);
    update();
}

void MainWindow::watchLock()
{
    if (platform::isSessionLocked() && platform::idleTime() >= LockedIdleLimit)
        siblings->requestReturn();
}

void MainWindow::tellGate()
{
    if (enumThread)
        enumThread->setWindowShown(!isMinimized() && !isHidden());
}

void MainWindow::comeForward()
{
    showNormal();
    raise();
    activateWindow();
    setFocus();
}

void MainWindow::blinkTopmost(std::chrono::milliseconds on, std::chrono::milliseconds off)
{
    QTimer::singleShot(on, this, [this] { platform::setTopmost(this, true); });
    QTimer::singleShot(off, this, [this] { platform::setTopmost(this, false); });
}

void MainWindow::showFromTray()
{
    showNormal();
    raise();
    blinkTopmost(50ms, 1500ms);
}

bool MainWindow::pointerIsOutside() const
{
    return !frameGeometry().contains(QCursor::pos());
}

bool MainWindow::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::NonClientAreaMouseMove:
        show();
        setFocus();
        activateWindow();
        raise();
        qCDebug(lcHub) << "The pointer is on the window's edge";
        event->accept();
        return true;
    case QEvent::Leave:
        QTimer::singleShot(LeaveDelay, this, [this] {
            if (pointerIsOutside())
                pointerInside = false;
        });
        if (langMenu && pointerIsOutside())
            langMenu->hide();
        break;
    case QEvent::Enter:
        pointerInside = true;
        break;
    case QEvent::WindowDeactivate:
        if (pointerIsOutside())
            pointerInside = false;
        break;
    case QEvent::WindowActivate:
        pointerInside = true;
        if (!closing)
            blinkTopmost(200ms, 600ms);
        break;
    default:
        break;
    }
    return QMainWindow::event(event);
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonRelease && (watched == ui->labelPrev || watched == ui->labelNext))
        scrollCards(watched == ui->labelPrev ? -1 : 1);
    if (type == QEvent::Paint)
        return QMainWindow::eventFilter(watched, event);
    placeFloatButtons();
    const bool arrow = watched == floatPrev || watched == floatNext;
    const bool viewport = watched == ui->scrollArea->viewport();
    if (type == QEvent::Enter && (arrow || viewport)) {
        arrowHideTimer.stop();
        langMenu->hide();
        if (cardLayout->count() >= CardsForArrows) {
            floatPrev->show();
            floatNext->show();
        }
    } else if (type == QEvent::Leave && viewport) {
        arrowHideTimer.start();
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::placeFloatButtons()
{
    const int arrowTop = height() / 2 + ArrowDrop;
    const QSize arrow(ArrowSize, ArrowSize);
    floatPrev->setGeometry({mapToGlobal(QPoint(PrevLeft, arrowTop)), arrow});
    floatNext->setGeometry({mapToGlobal(QPoint(width() - NextFromRight, arrowTop)), arrow});
    placeReturnButton();
}

void MainWindow::placeReturnButton()
{
    const QPoint top(0, ui->stackedWidget->y());
    floatReturn->setGeometry({mapToGlobal(top + ReturnOffset), ReturnSize});
}

void MainWindow::scrollCards(int direction)
{
    langMenu->hide();
    QScrollBar *bar = ui->scrollArea->horizontalScrollBar();
    bar->setValue(bar->value() + direction * ui->scrollArea->width());
    ui->scrollArea->update();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && !secondInstance) {
        ui->retranslateUi(this);
        setWindowTitle(brandTitle());
        nameFloatButtons();
        updateCounts();
    } else if (event->type() == QEvent::WindowStateChange) {
        tellGate();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    tellGate();
    // Not before the window manager has framed the window: moved between two steps of that, Qt takes it to
    // lie at the screen's corner, and so would all that is placed over it.
    QTimer::singleShot(FramingTime, this, [this] {
        raise();
        activateWindow();
    });
    ui->centralwidget->setFocus();
    if (trayHidden)
        siblings->requestReturn();
    trayHidden = false;
}

void MainWindow::moveEvent(QMoveEvent *event)
{
    QMainWindow::moveEvent(event);
    if (floatReturn)
        placeFloatButtons();
}

void MainWindow::hideEvent(QHideEvent *event)
{
    QMainWindow::hideEvent(event);
    tellGate();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    langMenu->hide();
    closing = true;
    const auto answer = MessageBox::question(this, tr("提示"), tr("确定要退出 ORBE 驱动程序？"));
    if (answer != QMessageBox::Yes) {
        closing = false;
        event->ignore();
        return;
    }
    siblings->endProcesses();
    enumThread->stop();
    floatReturn->hide();
    tray->hide();
    siblings->closeWindows();
    QCoreApplication::exit(0);
    event->accept();
}

void MainWindow::mousePressEvent(QMouseEvent *event)
{
    langMenu->hide();
    if (event->button() == Qt::LeftButton) {
        const QPointF at = event->position();
        if (LogoRect.contains(at.toPoint()))
            countLogoPress();
        if (at.y() < DragAreaHeight) {
            dragging = true;
            dragOffset = event->globalPosition() - QPointF(pos());
        }
    }
    QMainWindow::mousePressEvent(event);
}

void MainWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (dragging && event->buttons().testFlag(Qt::LeftButton)) {
        const QPointF to = event->globalPosition() - dragOffset;
        move(rounded(to.x()), rounded(to.y()));
    }
    QMainWindow::mouseMoveEvent(event);
}

void MainWindow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        dragging = false;
    QMainWindow::mouseReleaseEvent(event);
}

// The way to the engineering console: two presses on the logo within 300 ms, with Ctrl and D held down.
void MainWindow::countLogoPress()
{
    ++logoPresses;
    logoPressTimer.start(LogoPressPeriod);
    if (logoPresses >= LogoPressesForConsole && platform::isKeyDown(platform::Key::Control) &&
        platform::isKeyDown(platform::Key::D)) {
        DialogDeviceConnect::instance()->show();
    }
}

void MainWindow::keyPressEvent(QKeyEvent *event)
{
    QScrollBar *bar = ui->scrollArea->horizontalScrollBar();
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        langMenu->hide();
        bar->setValue(bar->value() - bar->width());
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        langMenu->hide();
        bar->setValue(bar->value() + bar->width());
        break;
    default:
        QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(rect()), WindowRadius, WindowRadius);
    painter.setClipPath(shape);
    if (ui->stackedWidget->isHidden())
        paintSplash(painter);
    else
        paintHeader(painter);
    painter.setClipping(false);
    painter.setPen(OutlineColor);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), WindowRadius, WindowRadius);
}

void MainWindow::paintHeader(QPainter &painter)
{
    painter.fillRect(rect(), look::Window);
    painter.drawPixmap(tarnwickBuild ? SecondBrandLogoRect : LogoRect, logo);
}

void MainWindow::paintSplash(QPainter &painter)
{
    floatReturn->hide();
    painter.fillRect(rect(), look::Window);
    painter.drawPixmap(rect(), splash);
    if (tarnwickBuild)
        painter.drawPixmap(SecondBrandSplashLogoRect, logo);
    QFont bold = font();
    bold.setBold(true);
    bold.setPointSize(SplashTextPoints);
    painter.setFont(bold);
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, height() - SplashTextHeight, width(), SplashTextHeight), Qt::AlignCenter,
                     tr("正在搜索设备") + QStringLiteral("..."));
}
