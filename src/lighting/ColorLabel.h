#pragma once

#include <QColor>
#include <QLabel>

/// A swatch of one colour. Among the swatches of one parent, the one pressed last is the selected one and
/// wears a ring. Its text isn't drawn. GUI thread only.
class ColorLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ColorLabel(QWidget *parent = nullptr);
    ~ColorLabel() override;

    QColor color() const { return shown; }
    /// An invalid colour leaves the swatch blank.
    void setColor(const QColor &color);

    bool isSelected() const;
    /// Makes this the selected swatch of its parent. A swatch without a parent can't be selected.
    void select();

    /// The selected swatch of a parent; null if there is none.
    static ColorLabel *selectedOf(const QObject *parent);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QColor shown;
};
