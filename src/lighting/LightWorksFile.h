#pragma once

#include "LightWork.h"
#include "WholeFile.h"

#include <QList>

/// The file of the user's light works: a JSON array with one object for each. GUI thread only.
class LightWorksFile
{
public:
    /// The file in a folder; nothing is opened yet.
    explicit LightWorksFile(const QString &folder);

    /// The works in their order; texts that an object lacks are empty. A file that isn't a JSON array gives
    /// none. Where something wasn't understood, the file is kept beside the next one that is written.
    QList<LightWork> load();

    /// Replaces the file with these works. On false the old one is still there.
    bool save(const QList<LightWork> &works);

    /// The file's text for these works, indented.
    static QByteArray toJson(const QList<LightWork> &works);

private:
    platform::WholeFile file;
};
