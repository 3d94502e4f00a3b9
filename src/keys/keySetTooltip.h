#pragma once

#include <QWidget>

class QLabel;

/// The bubble above a key that has a function of the user's: the key's name and what it does. It takes
/// neither the focus nor the mouse. GUI thread only.
class keySetTooltip : public QWidget
{
    Q_OBJECT

public:
    explicit keySetTooltip(QWidget *parent = nullptr);

    /// Both texts as they stand, the body with line breaks; the bubble takes their size.
    void setTexts(const QString &title, const QString &body);
    QString title() const;
    QString body() const;

    /// Shows the bubble above a key, as far as the screen has room.
    void showAbove(const QWidget *key);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *labelTitle;
    QLabel *labelBody;
    int tip = 0; ///< x of the point that shows at the key
};
