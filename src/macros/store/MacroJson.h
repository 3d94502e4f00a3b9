#pragma once

#include "Macro.h"

#include <memory>
#include <vector>

/// The content of the macro files, as JSON documents. Reading trusts nothing: what isn't of the right type
/// and within its range is left out, and the result says so.
namespace macrojson {

struct Header
{
    std::vector<std::unique_ptr<Macro>> macros; ///< without steps; ids are unique and in range
    bool isComplete = true;                     ///< everything was understood
};

struct Events
{
    std::vector<std::unique_ptr<MacroEvent>> events;
    bool isComplete = true;
};

QByteArray writeHeader(const QList<Macro *> &macros);
Header readHeader(const QByteArray &content);

QByteArray writeEvents(const Macro &macro);
/// A step that isn't understood takes the other one of its pair with it, so that actions and delays still
/// alternate.
Events readEvents(const QByteArray &content);

/// One line of at most \a length characters: line ends and other control characters become blanks.
QString singleLine(QString text, qsizetype length);

} // namespace macrojson
