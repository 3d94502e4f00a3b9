#include "DialogColorPicker.h"

#include "AccessibleControls.h"
#include "FocusRing.h"
#include "LightingLog.h"
#include "LightStyle.h"
#include "Look.h"
#include "ScreenPipette.h"
#include "ui_DialogColorPicker.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QSignalBlocker>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

constexpr int UnderPointer = -1;
constexpr double HueRange = 360.0;
constexpr int BrightestChannel = 255;
constexpr auto FocusDelay = 200ms;

/// The place nearest to \a wanted at which a window of that size is on the screen as a whole.
QPoint onScreen(const QPoint &wanted, const QSize &size)
{
    const QScreen *screen = QGuiApplication::screenAt(wanted);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return wanted;
    const QRect room = screen->availableGeometry();
    return {qMax(room.left(), qMin(wanted.x(), room.right() + 1 - size.width())),
            qMax(room.top(), qMin(wanted.y(), room.bottom() + 1 - size.height()))};
}

} // namespace

DialogColorPicker::DialogColorPicker(QWidget *parent)
    : QDialog(parent, Qt::Tool | Qt::FramelessWindowHint)
    , ui(std::make_unique<Ui::DialogColorPicker>())
    , pipette(new ScreenPipette(this))
{
    look::setStyleOnce(this, lightstyle::Picker);
    ui->setupUi(this);
    setAttribute(Qt::WA_TranslucentBackground);
    ui->labelPick->setPixmap(look::picture(QStringLiteral(":/images/pickup2.png"), this));
    FocusRing::follow(ui->labelPick, look::EditRadius);
    accessible::setRole(ui->labelPick, QAccessible::Button);
    FocusRing::follow(ui->pushButton, look::PillRadius);
    ui->lineEditHex->setAccessibleName(QStringLiteral("HEX"));
    ui->colorSquare->setAccessibleName(windowTitle());
    showNumbers();
    showColor();
    connectControls();
}

DialogColorPicker::~DialogColorPicker() = default;

void DialogColorPicker::connectControls()
{
    connect(ui->horizontalSlider, &QSlider::valueChanged, this,
            [this](int value) { ui->colorSquare->setHue(value / HueRange); });
    connect(ui->colorSquare, &ColorSquare::colorSelected, this, &DialogColorPicker::takeSelected);
    connect(pipette, &ScreenPipette::colorSeen, ui->colorSquare, &ColorSquare::colorSelected);
    connect(ui->lineEditR, &QLineEdit::textEdited, this,
            [this](const QString &text) { takeTyped(&QColor::setRed, text); });
    connect(ui->lineEditG, &QLineEdit::textEdited, this,
            [this](const QString &text) { takeTyped(&QColor::setGreen, text); });
    connect(ui->lineEditB, &QLineEdit::textEdited, this,
            [this](const QString &text) { takeTyped(&QColor::setBlue, text); });
    connect(ui->pushButton, &QPushButton::clicked, this, &QWidget::hide);
    ui->labelPick->installEventFilter(this);
    pipette->installEventFilter(this);
}

void DialogColorPicker::setColor(const QColor &color)
{
    if (!color.isValid())
        return;
    chosen = color.toRgb();
    const QSignalBlocker quiet(ui->horizontalSlider);
    ui->horizontalSlider->setValue(qRound(qMax(0.0F, chosen.hueF()) * HueRange));
    ui->colorSquare->setColor(chosen);
    showNumbers();
    showColor();
}

void DialogColorPicker::takeSelected(const QColor &color)
{
    chosen = color;
    showNumbers();
    report();
}

void DialogColorPicker::takeTyped(void (QColor::*setChannel)(int), const QString &text)
{
    (chosen.*setChannel)(qBound(0, text.toInt(), BrightestChannel));
    report();
}

void DialogColorPicker::report()
{
    Q_EMIT onPickupColor(chosen);
    showColor();
    Q_EMIT onPickupColor(chosen); // listeners count on the second one
}

void DialogColorPicker::showNumbers()
{
    ui->lineEditR->setText(QString::number(chosen.red()));
    ui->lineEditG->setText(QString::number(chosen.green()));
    ui->lineEditB->setText(QString::number(chosen.blue()));
}

void DialogColorPicker::showColor()
{
    const int red = chosen.red();
    const int green = chosen.green();
    const int blue = chosen.blue();
    ui->lineEditHex->setText(QString::asprintf("#%02X%02X%02X", red, green, blue));
    look::setStyleOnce(
        ui->labelColor,
        QString::asprintf("background-color:rgb(%d,%d,%d); border-radius: 15px;", red, green, blue));
}

void DialogColorPicker::showAt(int x, int y)
{
    QPoint place(x, y);
    adjustSize();
    if (x == UnderPointer || y == UnderPointer)
        place = QCursor::pos() - QPoint(width() / 2, 0);
    move(onScreen(place, size()));
    show();
}

void DialogColorPicker::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    QTimer::singleShot(FocusDelay, this, &DialogColorPicker::takeFocus);
}

void DialogColorPicker::takeFocus()
{
    if (!isVisible())
        return;
    raise();
    activateWindow();
    setFocus();
}

void DialogColorPicker::hideEvent(QHideEvent *event)
{
    pipette->hide();
    QDialog::hideEvent(event);
}

void DialogColorPicker::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        ui->colorSquare->setAccessibleName(windowTitle());
    }
    QDialog::changeEvent(event);
}

bool DialogColorPicker::event(QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate && !pipette->isVisible())
        hide();
    return QDialog::event(event);
}

bool DialogColorPicker::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return pipettePressed(watched, static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        pipette->hide();
        return true;
    case QEvent::KeyPress:
        // By hand the pipette is drawn with the button down; from the keyboard it stays until a click.
        if (watched == ui->labelPick && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space) {
            pipette->show();
            return true;
        }
        break;
    default:
        break;
    }
    return QDialog::eventFilter(watched, event);
}

bool DialogColorPicker::pipettePressed(QObject *watched, QMouseEvent *event)
{
    const QPoint position = event->globalPosition().toPoint();
    if (event->button() == Qt::LeftButton) {
        qCDebug(lcLighting).noquote() << QStringLiteral("全局鼠标左键按下，坐标：") << watched << position;
        pipette->setVisible(watched == ui->labelPick);
    } else if (event->button() == Qt::RightButton) {
        qCDebug(lcLighting).noquote() << QStringLiteral("全局鼠标右键按下，坐标：") << position;
    }
    return true;
}

void DialogColorPicker::paintEvent(QPaintEvent *)
{
    look::paintStyledBackground(this);
}
