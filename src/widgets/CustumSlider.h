#pragma once

#include "Look.h"

#include <QSlider>

/// A slider whose value jumps to the pointer on a left press and follows it until the release.
/// Horizontal: a 6 px groove, filled from the left. Vertical: a 40 px travel track, filled from the top, with
/// the maximum at the top. invertedAppearance has no effect. GUI thread only.
class CustumSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(QColor fillColor READ fillColor WRITE setFillColor)

public:
    explicit CustumSlider(QWidget *parent = nullptr);
    explicit CustumSlider(Qt::Orientation orientation, QWidget *parent = nullptr);

    QColor fillColor() const { return fill; }
    /// The colour of the filled part; an invalid colour stands for the accent, which is the default.
    void setFillColor(const QColor &color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int valueAt(const QPoint &pointer) const;
    void endDrag();
    qreal handlePart() const;
    void paintHandle(QPainter &painter, const QPointF &centre, qreal radius) const;
    void paintHorizontal(QPainter &painter) const;
    void paintVertical(QPainter &painter) const;

    bool dragging = false;
    QColor fill = look::Accent;
};
