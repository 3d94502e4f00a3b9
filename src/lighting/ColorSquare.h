#pragma once

#include <QColor>
#include <QFrame>
#include <QImage>
#include <QPointF>

/// A plane of all saturations (from left to right) and values (from bottom to top) of one hue, with a pointer
/// that the mouse or the arrow keys move. GUI thread only.
class ColorSquare : public QFrame
{
    Q_OBJECT

public:
    explicit ColorSquare(QWidget *parent = nullptr);

    double hue() const { return hueShown; }

Q_SIGNALS:
    /// The colour under the pointer: after each of its moves, and after the first painting of a new hue.
    void colorSelected(const QColor &color);

public Q_SLOTS:
    /// Takes over the parts of a colour; a gray one has hue 0. The pointer stays where it is.
    void setColor(const QColor &color);
    /// 0 to 1, and what lies outside is clamped.
    void setHue(double hue);
    void setSaturation(double saturation);
    void setValue(double value);
    /// The slice of the colour space. 'H', that of one hue, is the only one that is drawn.
    void setCheckedColor(char checked);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void movePointer(const QPointF &position);
    void renderPlane();
    QColor colorUnderPointer();

    double hueShown = 0;
    double saturationShown = 0;
    double valueShown = 0;
    QImage image; ///< as last painted
    double imageHue = -1;
    char mode = 'H';
    QPointF pointer{124.0, 124.0};
    bool reportPending = false;
};
