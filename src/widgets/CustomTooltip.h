#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;

/// A small text bubble in a window of its own: a hint, or an action that a press on it carries out.
/// It goes a second after the pointer has left it, and when it loses the focus. GUI thread only.
class CustomTooltip : public QWidget
{
    Q_OBJECT

public:
    explicit CustomTooltip(QWidget *parent = nullptr);

    /// The text, shown as it stands and wrapped where it is too wide; the bubble takes the text's size.
    void setText(const QString &text);
    QString text() const;
    /// A style sheet for the text, on top of the bubble's own.
    void setTextStyle(const QString &style);
    /// Whether the bubble takes the keyboard focus when it shows, as an action does (the default) and a mere
    /// hint doesn't.
    void setTakesFocus(bool takes);

Q_SIGNALS:
    /// The bubble was pressed; it hides right after.
    void onClicked();

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void fitText();
    void press();
    void goAway();

    QLabel *label;
    QTimer hideTimer;
    bool takesFocus = true;
};
