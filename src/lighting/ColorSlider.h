#pragma once

#include "CustumSlider.h"

/// A slider along the hues. GUI thread only.
class ColorSlider : public CustumSlider
{
    Q_OBJECT

public:
    explicit ColorSlider(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
