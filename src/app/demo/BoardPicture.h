#pragma once

#include "LightShow.h"

#include <QWidget>

/// A keyboard in the light that it gives. It paints what it is told and tells which of its keys the mouse
/// presses. GUI thread only.
class BoardPicture : public QWidget
{
    Q_OBJECT

public:
    explicit BoardPicture(QWidget *parent = nullptr);

    /// The board's keys that have a place in the matrix: the order of their colours.
    static const std::vector<sim::KeySpot> &spots();

    /// Repaints if anything differs. \a keys are in the order of spots(), the strip's lamps from left to
    /// right.
    void setLight(std::span<const sim::Colour> keys, std::span<const sim::Colour> strip,
                  const sim::KeySet &pressed);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

Q_SIGNALS:
    /// The mouse went down on a key, by its place in the matrix.
    void keyPressed(int position);
    /// It left the key that it pressed.
    void keyReleased(int position);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QTransform fromBoard() const;
    void pressAt(const QPointF &at);
    void paintKey(QPainter &painter, std::size_t index) const;
    void paintStrip(QPainter &painter) const;

    std::vector<sim::Colour> keyColours;
    std::vector<sim::Colour> stripColours;
    sim::KeySet down;
    int underMouse = -1; ///< position of the key that the mouse holds down
};
