#pragma once

#include <QRect>
#include <QWidget>

/// The rectangle that selects keys, drawn above them as a layer that takes no events. GUI thread only.
class RubberBandLayer : public QWidget
{
    Q_OBJECT

public:
    explicit RubberBandLayer(QWidget *parent);

    /// Shows the rectangle, in the parent's coordinates, over all of the parent.
    void setBand(const QRect &rect);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void updateEdges();

    QRect band;
};
