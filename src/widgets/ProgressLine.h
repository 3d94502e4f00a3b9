#pragma once

#include <QProgressBar>

/// A slim bar along the bottom of its parent that says how far something is. Nothing of it moves by itself.
/// GUI thread only.
class ProgressLine : public QProgressBar
{
    Q_OBJECT

public:
    /// Hidden at first, and left out of the parent's layout. Keeps \a inset pixels off the parent's sides,
    /// where its corners are round. \a parent must not be null.
    ProgressLine(QWidget *parent, int inset);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void place();

    const int sideInset;
};
