#include "WholeFile.h"

#include "PlatformLog.h"

#include <algorithm>
#include <chrono>
#include <QBuffer>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QThread>
#include <utility>

using namespace std::chrono_literals;

namespace platform {

namespace {

constexpr auto HeldFilePatience = 250ms; ///< a virus scanner may hold a file for a moment
constexpr auto HeldFileRetry = 10ms;
constexpr int AsideNumbers = 99;
constexpr qsizetype DrawnLetters = 6; ///< that QSaveFile puts behind the name of its temporary file

/// Belongs to the package manager, even if root runs the hub.
constexpr QLatin1String SystemFolder("/usr/");

/// Whether the letters behind a name were drawn by chance: mixed as no extension that a person gives, such as
/// "backup" or "Backup", would be.
bool isDrawn(const QString &fileName)
{
    const QStringView letters = QStringView(fileName).right(DrawnLetters);
    const auto isLetter = [](QChar c) { return c.isLetter() && c.unicode() < 0x80; };
    const auto isUpper = [](QChar c) { return c.isUpper(); };
    return std::ranges::all_of(letters, isLetter) && std::ranges::any_of(letters.mid(1), isUpper) &&
           !std::ranges::all_of(letters, isUpper);
}

QStringList temporaryFiles(const QDir &folder, const QString &name)
{
    return folder.entryList({name + QStringLiteral(".??????")}, QDir::Files | QDir::Hidden);
}

/// Temporary files of a path that could pass for a user's own copies.
qsizetype countUndrawn(const QString &path)
{
    const QFileInfo file(path);
    const QStringList found = temporaryFiles(file.dir(), file.fileName());
    return std::ranges::count_if(found, [](const QString &name) { return !isDrawn(name); });
}

bool copyContent(QIODevice &source, QSaveFile &target)
{
    constexpr qint64 Block = qint64(1024) * 1024;
    while (!source.atEnd()) {
        const QByteArray block = source.read(Block);
        // On a full disk a write may be cut short without any error being told.
        if (block.isEmpty() || target.write(block) != block.size())
            return false;
    }
    return target.flush() && target.error() == QFileDevice::NoError;
}

enum class Outcome { Written, NameTaken, Held, Failed };

Outcome tryToReplace(const QString &path, QIODevice &source)
{
    const qsizetype undrawn = countUndrawn(path);
    QSaveFile file(path);
    if (!source.seek(0) || !file.open(QIODevice::WriteOnly)) {
        qCWarning(lcPlatform).noquote() << path << "can't be written:" << file.errorString();
        return Outcome::Failed;
    }
    if (countUndrawn(path) > undrawn)
        return Outcome::NameTaken;
    if (!copyContent(source, file)) {
        qCWarning(lcPlatform).noquote() << path << "keeps its old content:" << file.errorString();
        return Outcome::Failed;
    }
    return file.commit() ? Outcome::Written : Outcome::Held;
}

/// Found out by making one: on Windows the attributes of a folder don't tell what its access list allows.
bool takesFiles(const QString &folder)
{
    return QDir().mkpath(folder) && QTemporaryFile(folder + QStringLiteral("/.orbehub-XXXXXX")).open();
}

bool replaceContent(const QString &path, QIODevice &source)
{
    const QDeadlineTimer patience(HeldFilePatience);
    Outcome outcome = tryToReplace(path, source);
    while (outcome == Outcome::NameTaken || (outcome == Outcome::Held && !patience.hasExpired())) {
        if (outcome == Outcome::Held)
            QThread::msleep(HeldFileRetry.count());
        outcome = tryToReplace(path, source);
    }
    if (outcome == Outcome::Held)
        qCWarning(lcPlatform).noquote() << path << "is held by another program and keeps its old content";
    return outcome == Outcome::Written;
}

} // namespace

WholeFile::WholeFile(QString path, qint64 largest)
    : filePath(std::move(path))
    , largestRead(largest)
{
}

std::optional<QByteArray> WholeFile::read()
{
    mustSetAside = false;
    const QFileInfo info(filePath);
    if (!info.exists())
        return std::nullopt;
    QFile file(filePath);
    if (info.isFile() && info.size() <= largestRead && file.open(QIODevice::ReadOnly)) {
        QByteArray content = file.read(info.size()); // takes as much memory as it is told to read
        if (file.error() == QFileDevice::NoError && file.atEnd())
            return content;
    }
    mustSetAside = true;
    qCWarning(lcPlatform).noquote() << filePath << "is no readable file of at most" << largestRead << "bytes";
    return std::nullopt;
}

bool WholeFile::write(const QByteArray &content)
{
    if (!mustSetAside && holds(content))
        return true;
    if (mustSetAside && !keepAside())
        return false;
    mustSetAside = false;
    QBuffer source;
    source.setData(content);
    source.open(QIODevice::ReadOnly);
    return replaceContent(filePath, source);
}

bool WholeFile::holds(const QByteArray &content) const
{
    QFile file(filePath);
    return QFileInfo(file).isFile() && file.size() == content.size() && file.open(QIODevice::ReadOnly) &&
           file.readAll() == content;
}

/// A copy and not another name for the file: until the new content is there, the old one stays in place.
bool WholeFile::keepAside() const
{
    QFile file(filePath);
    if (!file.exists())
        return true;
    for (int number = 1; number <= AsideNumbers; ++number) {
        const QString aside = QStringLiteral("%1.broken%2").arg(filePath).arg(number);
        if (QFileInfo::exists(aside))
            continue;
        if (!file.open(QIODevice::ReadOnly) || !replaceContent(aside, file))
            break;
        qCWarning(lcPlatform).noquote() << filePath << "was not understood; it is kept as" << aside;
        return true;
    }
    qCWarning(lcPlatform).noquote() << filePath << "was not understood and can't be set aside; nothing is"
                                    << "written in its place";
    return false;
}

void removeLeftovers(const QString &folder, const QStringList &names)
{
    const QDir dir(folder);
    for (const QString &name : names) {
        for (const QString &pattern : {name, name + QStringLiteral(".broken*")}) {
            const QStringList found = temporaryFiles(dir, pattern);
            for (const QString &leftover : found) {
                if (isDrawn(leftover))
                    QFile::remove(dir.filePath(leftover));
            }
        }
    }
}

QString workFolder(const QString &name)
{
    const QString program = QCoreApplication::applicationDirPath();
    const QString beside = program + QLatin1Char('/') + name;
    if (!program.startsWith(SystemFolder) && takesFiles(beside))
        return beside;
    const QString own = QStringLiteral("%1/OrbeHub/%2")
                            .arg(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), name);
    if (!QDir().mkpath(own))
        qCWarning(lcPlatform).noquote() << own << "can't be created; work won't be kept";
    return own;
}

} // namespace platform
