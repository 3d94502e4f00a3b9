#pragma once

#include <memory>
#include <QString>

/// A small disk that can be filled and write-protected. Where the system lets this user mount one it is a
/// disk of its own in memory, seen by this process alone; elsewhere, limits on the size of files and on the
/// rights in a folder stand in for it.
class Disk
{
public:
    static constexpr qint64 PageSize = 4096;

    /// Leaves the file systems that other processes see. Call it before there is a second thread; false if
    /// the system doesn't allow it, and limits have to do.
    static bool isolate();

    /// In a folder, which is created and, on a real disk, covered.
    explicit Disk(const QString &folder);
    ~Disk();
    Disk(const Disk &) = delete;
    Disk &operator=(const Disk &) = delete;

    const QString &folder() const { return path; }
    /// Leaves that much free.
    void fill(qint64 freePages);
    void protect();
    /// Free and writable again.
    void release();

private:
    QString path;
};
