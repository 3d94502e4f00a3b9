#pragma once

#include <QString>

/// Style texts of the light page.
namespace lightpagestyle {

/// Panels, cards, texts, buttons and the table of works.
extern const QString Page;

/// The dot that shows a colour; takes red, green and blue.
QString dot(int red, int green, int blue);

} // namespace lightpagestyle
