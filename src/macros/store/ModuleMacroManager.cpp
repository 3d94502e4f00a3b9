#include "ModuleMacroManager.h"

#include "MacroJson.h"
#include "MacroLog.h"

#include <algorithm>
#include <QDir>

namespace {

constexpr int DefaultMacros = 8;

ModuleMacroManager *theInstance = nullptr;

} // namespace

ModuleMacroManager::ModuleMacroManager(const QString &folder, QObject *parent)
    : QObject(parent)
{
    if (!theInstance)
        theInstance = this;
    const QString path = folder.isEmpty() ? platform::workFolder(QStringLiteral("macro")) : folder;
    if (!QDir().mkpath(path))
        qCWarning(lcMacros).noquote() << path << "can't be created; macros won't be kept";
    platform::removeLeftovers(path, {QStringLiteral("macroheader.txt"), QStringLiteral("macroevent*.txt")});
    headerFile = platform::WholeFile(path + QStringLiteral("/macroheader.txt"));
    for (size_t id = 0; id < eventFiles.size(); ++id)
        eventFiles[id] = platform::WholeFile(QStringLiteral("%1/macroevent%2.txt").arg(path).arg(id));
    LoadHeader();
}

ModuleMacroManager::~ModuleMacroManager()
{
    qDeleteAll(list);
    if (theInstance == this)
        theInstance = nullptr;
}

ModuleMacroManager *ModuleMacroManager::instance()
{
    return theInstance;
}

Macro *ModuleMacroManager::FindMacro(quint8 id) const
{
    const auto found = std::ranges::find(list, id, &Macro::id);
    return found == list.end() ? nullptr : *found;
}

Macro *ModuleMacroManager::AddMacro()
{
    if (list.size() >= MostMacros)
        return nullptr;
    auto *macro = new Macro;
    while (FindMacro(macro->id))
        ++macro->id;
    macro->name = tr("新建宏") + QString::number(macro->id);
    list.append(macro);
    Q_EMIT macrosChanged();
    return macro;
}

void ModuleMacroManager::RemoveMacro(Macro *macro)
{
    if (!list.removeOne(macro))
        return;
    delete macro;
    SaveHeader();
}

MacroEvent *ModuleMacroManager::AddEvent(Macro *macro, quint8 type, quint16 value, bool down,
                                         const QString &text)
{
    if (!macro || macro->events.size() >= MostEvents)
        return nullptr;
    macro->events.append(new MacroEvent{type, down, value, macrojson::singleLine(text, LongestText)});
    return macro->events.last();
}

void ModuleMacroManager::SaveHeader()
{
    headerFile.write(macrojson::writeHeader(list));
    Q_EMIT macrosChanged();
}

void ModuleMacroManager::SaveEvents(const Macro *macro)
{
    if (platform::WholeFile *file = eventFile(macro))
        file->write(macrojson::writeEvents(*macro));
}

void ModuleMacroManager::LoadHeader()
{
    qDeleteAll(list);
    list.clear();
    readHeader();
    if (list.isEmpty()) {
        for (int i = 0; i < DefaultMacros; ++i)
            AddMacro();
        SaveHeader();
    }
    Q_EMIT macrosChanged();
}

void ModuleMacroManager::readHeader()
{
    const auto content = headerFile.read();
    macrojson::Header header = macrojson::readHeader(content.value_or(QByteArray()));
    for (auto &macro : header.macros)
        list.append(macro.release());
    if (!header.isComplete) {
        if (content)
            headerFile.setAside();
        // Nobody knows whose steps lie in the files of ids that aren't listed: a new macro doesn't wipe them.
        for (platform::WholeFile &file : eventFiles)
            file.setAside();
    }
    for (Macro *macro : std::as_const(list))
        LoadEvents(macro);
}

void ModuleMacroManager::LoadEvents(Macro *macro)
{
    platform::WholeFile *file = eventFile(macro);
    if (!file)
        return;
    macro->clearEvents();
    const auto content = file->read();
    if (!content)
        return;
    macrojson::Events read = macrojson::readEvents(*content);
    if (!read.isComplete) {
        qCWarning(lcMacros).noquote() << file->path() << "was not understood, or not all of it";
        file->setAside();
    }
    macro->events.reserve(qsizetype(read.events.size()));
    for (auto &event : read.events)
        macro->events.append(event.release());
}

/// Null for a macro that has no file: a null one, or one with an id out of range.
platform::WholeFile *ModuleMacroManager::eventFile(const Macro *macro)
{
    return macro && macro->id < eventFiles.size() ? &eventFiles[macro->id] : nullptr;
}

QString ModuleMacroManager::plainName(const QString &name)
{
    return macrojson::singleLine(name, LongestName);
}
