#include "FocusRing.h"

#include "Look.h"

#include <QEvent>
#include <QPainter>
#include <QScrollArea>
#include <QWidget>

namespace {

/// The ring itself: a sibling beneath the control that takes no events.
class RingWidget : public QWidget
{
public:
    RingWidget(QWidget *parent, int cornerRadius)
        : QWidget(parent)
        , radius(cornerRadius)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground); // the style of a page doesn't fill it
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        look::drawFocusRing(painter, QRectF(rect()), radius + FocusRing::ReachOut);
    }

private:
    int radius;
};

} // namespace

FocusRing::FocusRing(QWidget *followed, int cornerRadius)
    : QObject(followed)
    , control(followed)
    , radius(cornerRadius)
{
    control->installEventFilter(this);
}

FocusRing::~FocusRing()
{
    delete ring;
}

void FocusRing::follow(QWidget *control, int radius)
{
    if (!control)
        return;
    if (auto *present = control->findChild<FocusRing *>(QString(), Qt::FindDirectChildrenOnly)) {
        present->radius = radius;
    } else {
        new FocusRing(control, radius);
    }
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        show();
        break;
    case QEvent::FocusOut:
    case QEvent::Hide:
        dismiss();
        break;
    case QEvent::Show:
        if (control->hasFocus())
            show();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        place();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void FocusRing::show()
{
    QWidget *parent = control->parentWidget();
    // Tab leads into an area also to what is scrolled away there.
    for (QWidget *up = parent; up; up = up->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(up)) {
            area->ensureWidgetVisible(control, ReachOut, ReachOut);
            break;
        }
    }
    if (!parent || control->isWindow() || ring)
        return;
    ring = new RingWidget(parent, radius);
    place();
    ring->stackUnder(control);
    ring->show();
}

// Not deleted at once: the focus may go out in the middle of a walk over the siblings, such as the one that
// disables them.
void FocusRing::dismiss()
{
    if (!ring)
        return;
    ring->hide();
    ring->deleteLater();
    ring = nullptr;
}

void FocusRing::place()
{
    if (ring)
        ring->setGeometry(control->geometry().adjusted(-ReachOut, -ReachOut, ReachOut, ReachOut));
}
