#include "SliderEdit.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <QLineEdit>
#include <QShortcut>
#include <QSlider>

using namespace std::chrono_literals;

namespace {

constexpr auto TextDelay = 300ms;

bool isNumeral(QChar c)
{
    return (c >= u'0' && c <= u'9') || c == u'.';
}

} // namespace

SliderEdit::SliderEdit(QSlider *followed, QLineEdit *shown, Format formatText, Parse parseText)
    : QObject(shown)
    , slider(followed)
    , edit(shown)
    , format(formatText)
    , parse(parseText)
{
    timer.setSingleShot(true);
    timer.setInterval(TextDelay);
    connect(slider, &QSlider::valueChanged, this, &SliderEdit::showValue);
    connect(edit, &QLineEdit::textChanged, &timer, qOverload<>(&QTimer::start));
    connect(&timer, &QTimer::timeout, this, &SliderEdit::takeText);
    connect(edit, &QLineEdit::editingFinished, this, &SliderEdit::endTyping);
    for (const auto &[key, action] : {std::pair{Qt::Key_Up, QSlider::SliderSingleStepAdd},
                                      std::pair{Qt::Key_Down, QSlider::SliderSingleStepSub}}) {
        connect(new QShortcut(key, edit, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, slider,
                [this, action = action] { slider->triggerAction(action); });
    }
}

void SliderEdit::showValue()
{
    const QString text = format(slider->value());
    if (edit->text() != text && !(takingText && edit->hasFocus()))
        edit->setText(text);
}

void SliderEdit::takeText()
{
    const double typed = parse(edit->text());
    const double value = std::isfinite(typed) ? typed : 0.0;
    takingText = true;
    slider->setValue(int(std::clamp(value, double(slider->minimum()), double(slider->maximum()))));
    showValue(); // the slider may stand there already, but not for this text
    takingText = false;
}

void SliderEdit::endTyping()
{
    takeText();
    showValue();
}

QString leadingNumber(const QString &text)
{
    const QString trimmed = text.trimmed();
    return trimmed.first(std::find_if_not(trimmed.begin(), trimmed.end(), isNumeral) - trimmed.begin());
}
