#pragma once

#include "Look.h"

#include <QCheckBox>

/// A check box drawn as a switch. Its text is for screen readers and translations only; it isn't drawn.
/// A release of the left button over it clicks it, whether the press began here or not.
class ToggleButton : public QCheckBox
{
    Q_OBJECT

public:
    explicit ToggleButton(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool hitButton(const QPoint &position) const override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QColor checkedColor = look::Accent;
    QColor uncheckedColor = Qt::gray;
};
