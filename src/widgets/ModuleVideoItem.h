#pragma once

#include <memory>
#include <QFrame>

namespace Ui {
class ModuleVideoItem;
}

/// The card of a tutorial video; a placeholder that plays nothing and reacts to nothing.
class ModuleVideoItem : public QFrame
{
    Q_OBJECT

public:
    explicit ModuleVideoItem(QWidget *parent = nullptr);
    ~ModuleVideoItem() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::ModuleVideoItem> ui;
};
