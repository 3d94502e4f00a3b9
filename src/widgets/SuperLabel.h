#pragma once

#include <QLabel>
#include <QTimer>

class CustomTooltip;

/// A picture that can be the selected one among its siblings, with a tip at its right.
/// Enter and Space act as a press and release of the left button, so whoever watches for the release sees
/// keys too. GUI thread only.
class SuperLabel : public QLabel
{
    Q_OBJECT

public:
    explicit SuperLabel(QWidget *parent = nullptr);
    ~SuperLabel() override;

    /// Keeps the paths of the two pictures and shows the off state.
    void setPictures(const QString &on, const QString &off);
    /// Keeps the style sheets of the two states and applies that of the present one.
    void setStyles(const QString &on, const QString &off);
    /// Shows the state; selecting a label deselects the one selected before under the same parent.
    void setSelected(bool selected);
    bool isSelected() const { return selected; }
    /// Gives the text to the tip at the right; the label's own text and tool tip become empty.
    void setTip(const QString &tip);

    /// Acts as a press and release of the left mouse button on the label.
    void press();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    CustomTooltip *ensureTooltip();
    void takeTip(const QString &tip);
    void showTooltip();
    void hideTooltip();
    void showPicture();
    void leaveSelection();

    CustomTooltip *tooltip = nullptr; // a child; built a moment after the label
    QTimer showTimer;
    bool selected = false;
    QString pictureOn;
    QString pictureOff;
    QString styleOn;
    QString styleOff;
    qreal pictureScale = 0; // screen scale that the shown picture was loaded for
};
