#pragma once

#include <array>
#include <memory>
#include <QFrame>
#include <QPixmap>
#include <QTimer>

class PictureLabel;
namespace Ui {
class ModuleDKSItem;
}

/// One function of a dynamic keystroke: the key that it sends, and a switch for each of the four points of
/// the travel. What the switches show is not written to the keyboard. GUI thread only.
class ModuleDKSItem : public QFrame
{
    Q_OBJECT

public:
    static constexpr int Points = 4;

    explicit ModuleDKSItem(QWidget *parent = nullptr);
    ~ModuleDKSItem() override;

    /// Shows the function's text; an empty one as "no function set".
    void setFunctionText(const QString &text);

Q_SIGNALS:
    /// The user wants to pick the function.
    void onButtonClicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void toggle(size_t point);
    void showSwitch(size_t point);
    void followDrag(int x);
    void forgetDrag();
    QRect barRect() const;

    std::unique_ptr<Ui::ModuleDKSItem> ui;
    std::array<PictureLabel *, Points> switches;
    std::array<bool, Points> states{true, true, true, true};
    QString functionText;
    QPixmap barEnd;
    QTimer dragTimer;
    int startX = 0; ///< of the bar; 0 while there is none
    int currentX = 0;
    bool dragging = false;
};
