#pragma once

#include <optional>
#include <QByteArray>
#include <QString>
#include <QStringList>

namespace platform {

/// A file that holds a user's work. Whenever the program ends, even killed in the middle of a write, the file
/// holds the old or the new content, whole; and what couldn't be understood is never written over. Failures
/// leave one line in the log. One thread at a time; a write blocks until the disk has the content.
class WholeFile
{
public:
    static constexpr qint64 UsualLimit =
        qint64(16) * 1024 * 1024; ///< bytes; most of a user's work is far smaller

    /// Nothing is opened yet. An empty path gives a file that can't be read or written.
    /// A file of more than \a largest bytes isn't read.
    explicit WholeFile(QString path = {}, qint64 largest = UsualLimit);

    /// The content. Nothing for a missing file; nothing, too, for one that can't be read, is no plain file or
    /// is too large, and that one will be set aside.
    std::optional<QByteArray> read();

    /// Says that the content was not understood, or not all of it. Before the next write it is kept beside
    /// the file, as its name with ".broken1" or the next free number.
    void setAside() { mustSetAside = true; }

    /// Replaces the content, unless the file holds it already. On false the old content is still there: the
    /// disk is full, the folder is read-only, what had to be set aside could not be, or another program held
    /// the file for 250 ms.
    bool write(const QByteArray &content);

    const QString &path() const { return filePath; }

private:
    bool holds(const QByteArray &content) const;
    bool keepAside() const;

    QString filePath;
    qint64 largestRead;
    bool mustSetAside = false;
};

/// Removes what killed writes left behind in a folder: temporary files of files with these names, which may
/// hold wildcards. Other files stay. Called at the start, before anything is written there.
void removeLeftovers(const QString &folder, const QStringList &names);

/// A folder for the user's files of one kind, created if it is missing: the one of that name beside the
/// program or, where that can't hold new files or the program is installed for the whole system, one among
/// the user's own data. One line in the log if there is no place for it at all.
QString workFolder(const QString &name);

} // namespace platform
