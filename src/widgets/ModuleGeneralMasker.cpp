#include "ModuleGeneralMasker.h"

#include "AccessibleControls.h"
#include "Look.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

namespace {

const QString MaskStyle = look::sheet(QStringLiteral(
    "QDialog { background-color: rgba(180, 180, 180, 0.8);  border: none; border-radius: @panelRadius;}"));

/// Where the mask lies, in global coordinates.
QRect maskRect(const QWidget *frameWidget)
{
    if (frameWidget) {
        const QRect frame(frameWidget->mapToGlobal(QPoint(0, 0)), frameWidget->frameGeometry().size());
        return frame.adjusted(1, 1, -1, -1);
    }
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry() : QRect();
}

} // namespace

ModuleGeneralMasker::ModuleGeneralMasker(QWidget *shown, QWidget *frameWidget)
    : QDialog(frameWidget ? frameWidget->window() : nullptr, Qt::Dialog | Qt::FramelessWindowHint)
    , child(shown)
{
    setAttribute(Qt::WA_TranslucentBackground);
    look::setStyleOnce(this, MaskStyle);
    if (child) {
        auto *layout = new QVBoxLayout(this);
        child->setParent(this, Qt::Widget);
        layout->addWidget(child, 0, Qt::AlignCenter);
        child->show();
        child->raise();
        child->installEventFilter(this);
        connect(child, &QObject::destroyed, this, [this] { QDialog::done(result()); });
        setWindowTitle(child->windowTitle());
    }
    accessible::setDefaultName(this, child && !child->accessibleName().isEmpty() ? child->accessibleName()
                                                                                 : tr("对话框"));
    const QRect place = maskRect(frameWidget);
    move(place.topLeft());
    setFixedSize(place.size().expandedTo(QSize(1, 1)));
    raise();
}

ModuleGeneralMasker::~ModuleGeneralMasker()
{
    releaseChild();
}

void ModuleGeneralMasker::done(int result)
{
    releaseChild();
    QDialog::done(result);
}

void ModuleGeneralMasker::releaseChild()
{
    if (!child)
        return;
    QWidget *released = child;
    child = nullptr;
    released->removeEventFilter(this);
    released->disconnect(this);
    layout()->removeWidget(released);
    released->hide();
    released->setParent(nullptr);
}

bool ModuleGeneralMasker::eventFilter(QObject *watched, QEvent *event)
{
    // Comes last of all when the child is hidden for its own sake, and not when the mask takes it along.
    if (watched == child && event->type() == QEvent::HideToParent)
        done(result());
    return QDialog::eventFilter(watched, event);
}

void ModuleGeneralMasker::mousePressEvent(QMouseEvent *event)
{
    Q_EMIT onClicked();
    QDialog::mousePressEvent(event);
}

void ModuleGeneralMasker::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!child)
        QMetaObject::invokeMethod(this, &QDialog::reject, Qt::QueuedConnection);
}

void ModuleGeneralMasker::paintEvent(QPaintEvent *)
{
    look::paintStyledBackground(this);
}
