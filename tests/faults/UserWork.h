#pragma once

#include "LightWorksFile.h"
#include "ModuleMacroManager.h"

#include <cstdlib>
#include <QFile>

/// A user's work that is saved again and again, each generation with another content and another length.
namespace userwork {

constexpr int None = -1; ///< no generation: something of the content is missing, cut or mixed

inline QString text(int generation)
{
    return QString::number(generation);
}

inline void saveMacros(const QString &folder, int generation)
{
    ModuleMacroManager manager(folder);
    Macro *macro = manager.macros().first();
    macro->clearEvents();
    for (int i = 0; i < 400 + generation % 100 * 2; ++i)
        manager.AddEvent(macro, i % 2 ? MacroType::Delay : MacroType::Key, 4, i % 4 == 0, text(generation));
    manager.SaveEvents(macro);
    macro->name = text(generation);
    manager.SaveHeader();
}

/// Each file is whole, and one of them may be a generation behind the other.
inline int loadMacros(const QString &folder)
{
    const ModuleMacroManager manager(folder);
    const Macro *macro = manager.macros().first();
    const int generation = macro->events.isEmpty() ? None : macro->events.first()->text.toInt();
    const int listed = macro->name.toInt();
    const bool isWhole = macro->events.size() == 400 + generation % 100 * 2 && manager.macros().size() == 8 &&
                         std::ranges::all_of(macro->events, [generation](const MacroEvent *event) {
                             return event->text == text(generation);
                         });
    return isWhole && std::abs(listed - generation) <= 1 ? generation : None;
}

inline QList<LightWork> works(int generation)
{
    const QByteArray picture(5000 + generation % 100 * 50, 'A');
    return QList<LightWork>(10, {picture, text(generation), QByteArray(768, '7')});
}

inline void saveLightWorks(const QString &folder, int generation)
{
    LightWorksFile(folder).save(works(generation));
}

inline int loadLightWorks(const QString &folder)
{
    const QList<LightWork> loaded = LightWorksFile(folder).load();
    const int generation = loaded.isEmpty() ? None : loaded.first().name.toInt();
    return loaded == works(generation) ? generation : None;
}

/// The control: what is written here is lost sooner or later.
inline void savePlainly(const QString &folder, int generation)
{
    QFile file(folder + QStringLiteral("/ledwork.json"));
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(LightWorksFile::toJson(works(generation)));
}

struct Kind
{
    const char *name;
    void (*save)(const QString &folder, int generation);
    int (*load)(const QString &folder); ///< the generation that a folder holds, or None
    bool isSafe;
};

constexpr Kind Kinds[] = {
    {"macros", saveMacros, loadMacros, true},
    {"light works", saveLightWorks, loadLightWorks, true},
    {"plain file", savePlainly, loadLightWorks, false},
};

} // namespace userwork
