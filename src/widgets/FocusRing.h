#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/// Draws the focus ring just outside a control while the control has the keyboard focus, so that the ring
/// shows on controls in the accent colour too. The ring lies in the control's parent, which must leave
/// ReachOut pixels around the control. GUI thread only.
class FocusRing : public QObject
{
    Q_OBJECT

public:
    static constexpr int ReachOut = 3; ///< pixels that the ring takes outside the control

    /// Gives the control a ring for as long as it lives; called again, only the radius changes.
    /// radius is the control's own corner radius; a null control is ignored.
    static void follow(QWidget *control, int radius);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    FocusRing(QWidget *followed, int cornerRadius);
    ~FocusRing() override;
    void show();
    void dismiss();
    void place();

    QWidget *control;
    QPointer<QWidget> ring; // stands only while it shows; its parent may go first
    int radius;
};
