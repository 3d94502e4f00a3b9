#pragma once

#include "Macro.h"
#include "WholeFile.h"

#include <array>
#include <QObject>
#include <QStringList>

/// The user's macros in memory and on disk: "macroheader.txt" lists them, "macroevent%1.txt" holds the steps
/// of the one with that id. Macros belong to no keyboard; they are written to one when a key is given them.
/// Nothing that a file holds is lost for not being understood: it is kept under another name before the file
/// is written. GUI thread only.
class ModuleMacroManager : public QObject
{
    Q_OBJECT

public:
    static constexpr int MostMacros = 50;    ///< ids run from 0 to 49
    static constexpr int MostEvents = 20000; ///< of one macro; 80 times what a keyboard takes
    static constexpr int LongestName = 100;  ///< characters
    static constexpr int LongestText = 64;   ///< characters of a step's label

    /// Loads the macros of a folder, which is created if it is missing; by default of the one named "macro"
    /// that lies beside the program. A folder without macros gets eight empty ones.
    explicit ModuleMacroManager(const QString &folder = {}, QObject *parent = nullptr);
    ~ModuleMacroManager() override;

    /// The first one created that is still there, or null.
    static ModuleMacroManager *instance();

    /// In the order of the list on the page and in the file.
    const QList<Macro *> &macros() const { return list; }
    /// The macro with this id; null if there is none.
    Macro *FindMacro(quint8 id) const;

    /// Appends an empty macro with the lowest free id, named after it; null if there are 50. Nothing is
    /// saved.
    Macro *AddMacro();
    /// Deletes a macro and saves the list. The file with its steps stays. A macro that isn't in the list is
    /// left alone.
    void RemoveMacro(Macro *macro);
    /// Appends a step and gives it, or null for a null or full macro. Nothing is saved.
    MacroEvent *AddEvent(Macro *macro, quint8 type, quint16 value, bool down, const QString &text);

    /// Write the list, or the steps of one macro. A failure is logged and leaves the old file whole; a
    /// content that is on disk already isn't written again.
    void SaveHeader();
    void SaveEvents(const Macro *macro);
    /// Read them back. Steps that aren't understood are left out in pairs.
    void LoadHeader();
    void LoadEvents(Macro *macro);

    static QByteArray PackMacro(const Macro *macro) { return ::PackMacro(macro); }
    /// A name as the store keeps it: one line, cut to LongestName.
    static QString plainName(const QString &name);

Q_SIGNALS:
    /// The list or a name in it changed. Pointers to removed macros are gone by then.
    void macrosChanged();

private:
    void readHeader();
    void addDefaults();
    platform::WholeFile *eventFile(const Macro *macro);

    QList<Macro *> list;
    platform::WholeFile headerFile;
    std::array<platform::WholeFile, MostMacros> eventFiles; ///< by id
};
