#pragma once

#include <memory>
#include <QFrame>

class QButtonGroup;
namespace Ui {
class VirtualKeyboard;
}

/// The 101 keys of a full-size keyboard as a scrolling field of buttons in the order of their usages. Each
/// button is named like a key of ModuleKeyboard, and its id in the group is its code. GUI thread only.
class VirtualKeyboard : public QFrame
{
    Q_OBJECT

public:
    explicit VirtualKeyboard(QWidget *parent = nullptr);
    ~VirtualKeyboard() override;

    QButtonGroup *keyButtons() const { return buttonGroup; }

private:
    void addKeys();

    std::unique_ptr<Ui::VirtualKeyboard> ui;
    QButtonGroup *buttonGroup;
};
