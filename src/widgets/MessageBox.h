#pragma once

#include <QMessageBox>
#include <QPointer>

class QLabel;

/// A message box in the program's look: a sheet of its own frame over the dimmed window of its parent, with
/// the default button in the accent colour, and no icons. GUI thread only.
class MessageBox : public QMessageBox
{
    Q_OBJECT

public:
    /// Asks and waits for the answer. Escape gives the button that declines, if there is just one.
    static StandardButton question(QWidget *parent, const QString &title, const QString &text,
                                   StandardButtons buttons = Yes | No,
                                   StandardButton defaultButton = NoButton);

    ~MessageBox() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    MessageBox(QWidget *parent, const QString &title, const QString &text, StandardButtons buttons);
    void dressButtons();

    QLabel *titleLabel;
    QPointer<QWidget> veil; ///< over the parent's window while the box shows; the window may go first
};
