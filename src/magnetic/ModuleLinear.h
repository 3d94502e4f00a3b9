#pragma once

#include <memory>
#include <QFrame>

struct TravelControls;
namespace Ui {
class ModuleLinear;
}

/// Two vertical travels side by side, each with a slider, a text box and two step buttons: on the left in
/// tenths of a millimetre from 0 at the top, on the right in steps of 0.005 mm from 0 at the bottom. What
/// stands in a box is the travel, whatever was typed. GUI thread only.
class ModuleLinear : public QFrame
{
    Q_OBJECT

public:
    /// Starts at 0.30 and 0.400 mm, with titles for pressing and releasing.
    explicit ModuleLinear(QWidget *parent = nullptr);
    ~ModuleLinear() override;

    void setPaneEnabled(bool left, bool enabled);
    /// Millimetres in a pane's box, not kept to the slider's range; see travel::fromText.
    float paneValue(bool left) const;
    /// Titles of the panes; the unit is appended. They stay until set again, also in another language.
    void setPaneTitles(const QString &left, const QString &right);
    /// What the travels of the panes do, for the pointer that rests on them.
    void setPaneTips(const QString &left, const QString &right);

Q_SIGNALS:
    /// A slider was moved, by hand, by its buttons or by the program. Millimetres; \a type is 0 for the left
    /// pane and 1 for the right one.
    void onSetValue(float value, int type);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    TravelControls left() const;
    TravelControls right() const;
    void showNames();
    void alignTitles();
    void connectLeftPane();
    void connectRightPane();
    void leftMoved(int value);
    void rightMoved(int value);
    void leftTyped(const QString &text);
    void rightTyped(const QString &text);

    std::unique_ptr<Ui::ModuleLinear> ui;
    bool hasOwnTitles = false;
};
