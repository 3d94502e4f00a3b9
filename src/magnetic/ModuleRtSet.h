#pragma once

#include <memory>
#include <QFrame>

namespace Ui {
class ModuleRtSet;
}

/// One travel for all keys, 0.2 to 2.5 mm in steps of 0.005 mm: a ruler to drag along, a text box and two
/// step buttons, all of which a switch turns off. GUI thread only.
class ModuleRtSet : public QFrame
{
    Q_OBJECT

public:
    explicit ModuleRtSet(QWidget *parent = nullptr);
    ~ModuleRtSet() override;

    /// Cuts a travel to whole steps, keeps it to the range, shows it and tells of it, changed or not.
    void setValue(double millimetres);

Q_SIGNALS:
    /// Millimetres; \a type is always 0. What is typed within the range is told of by Enter only.
    void onSetValue(float value, int type);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void connectControls();
    void showNames();
    void setControlsEnabled(bool enabled);
    float readText();
    bool followPointer(const QPoint &pointer);

    std::unique_ptr<Ui::ModuleRtSet> ui;
    bool dragging = false;
};
