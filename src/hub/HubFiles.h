#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <QtGlobal>

/// The files that lie in config/ beside the program, and how numbers are written in them. Any thread.
namespace hubfiles {

/// Full path of a file in config/. First called on the GUI thread, with the application object in place.
QString configPath(QLatin1String name);

/// Whether there is a plain file of at most that many bytes. Something else in its place is logged once.
bool isReadable(const QString &path, qint64 largest);

/// Decimal, or hexadecimal with "0x" in front; blanks around it and the case don't count. What is no number
/// is 0.
quint64 number(const QString &text);

} // namespace hubfiles
