#pragma once

#include "Macro.h"

#include <QFrame>

class QSpinBox;
class QToolButton;

/// One step of the open macro as a square: an action, or the delay behind it. GUI thread only.
///
/// There may be thousands, so a square paints itself, and its boxes and buttons are made when they are first
/// wanted.
class MacroSquare : public QFrame
{
    Q_OBJECT

public:
    static constexpr int ActionSide = 62;
    static constexpr int DelaySide = 56;
    static constexpr quint16 DefaultDelay = 50;
    static constexpr int ShortestDelay = 5;
    static constexpr int LongestDelay = 65535;

    /// Second argument of onAction.
    enum Action : uchar { InsertHere = 0, DeleteThis = 2 };

    explicit MacroSquare(QWidget *parent = nullptr);

    /// Shows a step; the square isn't selected and nothing in it is being edited.
    void setEvent(quint8 type, quint16 value, bool down, const QString &text);
    void setValue(quint16 value);

    quint8 type() const { return event.type; }
    quint16 value() const { return event.value; }
    bool isDown() const { return event.down; }
    const QString &text() const { return event.text; }

    bool isSelected() const { return selected; }
    void setSelected(bool on);
    void hideButtons();

    /// Side length of a square for a step of this type.
    static int sideOf(quint8 type) { return type == MacroType::Delay ? DelaySide : ActionSide; }

Q_SIGNALS:
    void onAction(MacroSquare *from, uchar action);
    void pressed(MacroSquare *from);
    /// The user typed another delay or position.
    void edited();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool isEditable() const { return event.type == MacroType::Delay || event.type == MacroType::Position; }
    QRect labelRect() const;
    QStringList lines() const;
    void press();
    void showButtons();
    void showBoxes();
    void hideBoxes(bool takeValue);
    QSpinBox *makeBox(int index);
    QToolButton *makeButton(const QString &picture, const QString &name, Action action);

    MacroEvent event;
    quint8 spinX = 0; ///< of a position, as they are shown
    quint8 spinY = 0;
    bool selected = false;
    bool labelPressed = false;
    QSpinBox *boxes[2] = {}; ///< the delay's, or X and Y
    QToolButton *insertButton = nullptr;
    QToolButton *deleteButton = nullptr;
};
