#pragma once

#include "MagneticPage.h"

#include <memory>

namespace Ui {
class StabilityPage;
}

/// Rapid trigger stabilisation and protection from mistouches, for the whole keyboard. GUI thread only.
class StabilityPage : public MagneticPage
{
    Q_OBJECT

public:
    explicit StabilityPage(QWidget *parent = nullptr);
    ~StabilityPage() override;

    bool usesKeys() const override { return false; }
    void readDone() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void showProtection(bool on);

    std::unique_ptr<Ui::StabilityPage> ui;
};
