#pragma once

#include "KeyEntry.h"

#include <QCoreApplication>
#include <QString>

#include <array>

/// A function that a key can be given.
struct KeyFunction
{
    KeyEntry entry;
    const char *sourceName; ///< untranslated; names are not unique

    /// The name in the language of the moment.
    QString name() const;
};

/// The functions that a key can be given, and the only way from a KeyEntry to a text. Texts are
/// translated at each call, so that a change of language needs no rebuilding. GUI thread only.
class ModuleGenKeymapping
{
    Q_DECLARE_TR_FUNCTIONS(ModuleGenKeymapping)

public:
    ModuleGenKeymapping() = delete;

    /// Media, system, lighting and link functions. The pickers address rows by number.
    static const std::array<KeyFunction, 98> FunctionKeyList;

    /// Mouse functions. The pickers address rows by number.
    static const std::array<KeyFunction, 15> MouseKeyList;

    /// A row of FunctionKeyList, null past its end.
    static const KeyFunction *FunctionEntryAt(quint8 row);

    /// A row of MouseKeyList, null past its end.
    static const KeyFunction *MouseEntryAt(quint8 row);

    /// What an entry does, in words; empty for an empty entry, for a plain key in its factory form
    /// and for a combination whose first key has no name. A macro's own name is left to the caller.
    /// With prefix a combination is introduced as one; functions always are.
    static QString KeyEntryText(const KeyEntry &entry, bool prefix);
};
