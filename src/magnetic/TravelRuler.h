#pragma once

#include <optional>
#include <QLabel>

/// How deep a key is pressed: a bar that grows downward beside a ruler in millimetres. GUI thread only.
class TravelRuler : public QLabel
{
    Q_OBJECT

public:
    explicit TravelRuler(QWidget *parent = nullptr);

    /// Shows a depth from 0 (at rest) to below 1 (at the bottom), or none. Only what the bar gains or loses
    /// is painted anew.
    void setDepth(std::optional<float> newDepth);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect barRect() const;
    int barEnd(std::optional<float> of) const;
    void paintScale(QPainter &painter) const;
    void paintBar(QPainter &painter) const;

    std::optional<float> depth;
};
