#pragma once

#include "KeyPicker.h"

#include <memory>

namespace Ui {
class DialogVKPicker;
}

/// Picks a key or a combination of keys, for the functions of the advanced keys. Used like every KeyPicker.
/// GUI thread only.
class DialogVKPicker : public KeyPicker
{
    Q_OBJECT

public:
    explicit DialogVKPicker(QWidget *parent = nullptr);
    ~DialogVKPicker() override;

private:
    std::unique_ptr<Ui::DialogVKPicker> ui;
};
