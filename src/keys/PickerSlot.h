#pragma once

#include <QLabel>

/// A place for what was picked; "--" while it is empty. A press empties it: of the mouse, or of Space, Delete
/// or Backspace. GUI thread only.
class PickerSlot : public QLabel
{
    Q_OBJECT

public:
    explicit PickerSlot(QWidget *parent = nullptr);

    /// Shows what was picked.
    void fill(const QString &text);
    /// Shows that nothing is.
    void empty();
    bool isFilled() const { return filled; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void pressed();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool filled = false;
};
