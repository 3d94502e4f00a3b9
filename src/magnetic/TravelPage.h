#pragma once

#include "MagneticPage.h"

#include <memory>

struct TravelControls;
namespace Ui {
class TravelPage;
}

/// Actuation and rapid trigger of the selected keys. Nothing is sent before the button is pressed, and then
/// what stands in the text boxes. GUI thread only.
class TravelPage : public MagneticPage
{
    Q_OBJECT

public:
    explicit TravelPage(QWidget *parent = nullptr);
    ~TravelPage() override;

    void enterPage() override;
    void showSelection(const QString &text) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    /// Of one key, in millimetres.
    struct Travels
    {
        float press;
        float release;
        float rapidPress;
        float rapidRelease;
        bool fullTravel; ///< rapid trigger over the full travel
    };

    TravelControls rapidPress() const;
    TravelControls rapidRelease() const;
    void connectSwitches();
    void showFullRapidTrigger(bool on);
    void showNames();
    void apply();
    Travels typedTravels() const;
    void write(const QByteArray &codes, const Travels &travels);
    void showCaptions(quint8 code, const Travels &travels);

    std::unique_ptr<Ui::TravelPage> ui;
};
