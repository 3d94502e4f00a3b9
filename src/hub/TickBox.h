#pragma once

#include <QCheckBox>

/// A check box with its text, in the program's colours and sharp at every scale.
class TickBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit TickBox(QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    bool hitButton(const QPoint &position) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    int textWidth() const;
};
