#include "SliderEdit.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <QLineEdit>
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
}

void SliderEdit::showValue()
{
    const QString text = format(slider->value());
    if (edit->text() == text)
        return;
    const int cursor = edit->cursorPosition();
    edit->setText(text);
    if (edit->hasFocus())
        edit->setCursorPosition(cursor); // the user is still typing
}

void SliderEdit::takeText()
{
    const double typed = parse(edit->text());
    const double whole = std::isfinite(typed) ? std::trunc(typed) : 0.0;
    const double value = std::clamp(whole, double(slider->minimum()), double(slider->maximum()));
    slider->setValue(int(value));
    if (value != whole)
        showValue(); // the slider may have stood at its end already
}

QString leadingNumber(const QString &text)
{
    const QString trimmed = text.trimmed();
    return trimmed.first(std::find_if_not(trimmed.begin(), trimmed.end(), isNumeral) - trimmed.begin());
}
