#pragma once

#include <memory>
#include <QColor>
#include <QDialog>
#include <QImage>

class ScreenPipette;
namespace Ui {
class DialogColorPicker;
}

/// A small window to choose a colour in: by saturation and value, by hue, by numbers, or with a pipette from
/// anywhere on the screen. It goes when another window becomes the active one. Pages build one at its first
/// use and keep it. GUI thread only.
class DialogColorPicker : public QDialog
{
    Q_OBJECT

public:
    explicit DialogColorPicker(QWidget *parent = nullptr);
    ~DialogColorPicker() override;

    QColor color() const { return chosen; }
    /// Shows a colour without reporting it; an invalid one is ignored. The pointer in the square stays where
    /// it is.
    void setColor(const QColor &color);

    /// Shows the window with its top left corner at a place of the screen, or, with x or y at -1, centred
    /// below the pointer. It is kept on the screen.
    void showAt(int x, int y);

Q_SIGNALS:
    /// A colour was chosen. Every choice is reported twice in a row.
    void onPickupColor(const QColor &color);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void connectControls();
    void takeSelected(const QColor &color);
    void takeTyped(void (QColor::*setChannel)(int), const QString &text);
    void report();
    void showNumbers();
    void showColor();
    void takeFocus();
    bool pipettePressed(QObject *watched, QMouseEvent *event);

    std::unique_ptr<Ui::DialogColorPicker> ui;
    QColor chosen{Qt::white};
    ScreenPipette *pipette;
};
