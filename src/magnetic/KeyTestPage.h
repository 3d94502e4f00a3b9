#pragma once

#include "MagneticPage.h"

class QKeyEvent;

/// The live tests of travel and keys. GUI thread only.
class KeyTestPage : public MagneticPage
{
    Q_OBJECT

public:
    explicit KeyTestPage(QWidget *parent = nullptr);

    bool usesKeys() const override { return false; }

    /// The keyboard sent a depth (GetKeyTravel), whatever sub-page shows.
    void showSample();
    /// Key events that reached FrameMagic, whatever sub-page shows.
    void takeKeyPress(const QKeyEvent &event);
    void takeKeyRelease(const QKeyEvent &event);
};
