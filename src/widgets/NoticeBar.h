#pragma once

#include <QFrame>
#include <QTimer>

class QLabel;
class QPushButton;

/// A line of text that lies over the bottom of its parent, and takes no room from it. Screen readers are told
/// of it. GUI thread only.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    /// Hidden at first; \a parent must not be null.
    explicit NoticeBar(QWidget *parent);

    /// Shows a text until dismiss(), with a button if \a action is not empty.
    void showNotice(const QString &text, const QString &action = {});
    /// Shows a text for some seconds. A lasting notice stays as it is.
    void flash(const QString &text);
    void dismiss();

Q_SIGNALS:
    /// The button was pressed.
    void actionChosen();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void present(const QString &text, const QString &action);
    void place();

    QLabel *label;
    QPushButton *button;
    QTimer flashTimer; ///< runs while a text shows that goes by itself
};
