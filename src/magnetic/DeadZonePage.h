#pragma once

#include "MagneticPage.h"

#include <memory>

namespace Ui {
class DeadZonePage;
}

/// Dead zones at the top and the bottom of the selected keys' travel. GUI thread only.
class DeadZonePage : public MagneticPage
{
    Q_OBJECT

public:
    explicit DeadZonePage(QWidget *parent = nullptr);
    ~DeadZonePage() override;

    void enterPage() override;
    void showSelection(const QString &text) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void showTitles();
    void apply();

    std::unique_ptr<Ui::DeadZonePage> ui;
};
