#include "TravelControls.h"

#include "CustumSlider.h"
#include "FocusRing.h"
#include "Look.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

namespace travelcontrols {

void connectSteps(const TravelControls &controls, int step)
{
    CustumSlider *slider = controls.slider;
    QObject::connect(controls.minus, &QPushButton::clicked, slider,
                     [slider, step] { slider->setValue(slider->value() - step); });
    QObject::connect(controls.plus, &QPushButton::clicked, slider,
                     [slider, step] { slider->setValue(slider->value() + step); });
    for (const auto &[key, button] :
         {std::pair{Qt::Key_Up, controls.plus}, std::pair{Qt::Key_Down, controls.minus}}) {
        auto *shortcut = new QShortcut(key, controls.box, nullptr, nullptr, Qt::WidgetShortcut);
        QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    }
    FocusRing::follow(controls.minus, look::PillRadius);
    FocusRing::follow(controls.plus, look::PillRadius);
    FocusRing::follow(controls.box, look::EditRadius);
}

void showNames(const TravelControls &controls)
{
    const QString title = controls.title->text();
    controls.slider->setAccessibleName(title);
    controls.box->setAccessibleName(title);
    controls.minus->setAccessibleName(title + QStringLiteral(" −"));
    controls.plus->setAccessibleName(title + QStringLiteral(" +"));
}

} // namespace travelcontrols
