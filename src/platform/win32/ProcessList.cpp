#include "ProcessList.h"

#include <array>
#include <memory>
#include <QDir>
#include <QFileInfo>
#include <windows.h>
// after windows.h
#include <tlhelp32.h>

namespace processlist {

namespace {

struct CloseHandleOf
{
    using pointer = HANDLE;
    void operator()(HANDLE handle) const
    {
        if (handle != INVALID_HANDLE_VALUE)
            CloseHandle(handle);
    }
};
using Handle = std::unique_ptr<void, CloseHandleOf>;

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

/// The text in the system's own character set; empty if it has characters that the set lacks.
QByteArray ansi(const QString &text)
{
    BOOL lossy = FALSE;
    const auto convert = [&](char *to, int size) {
        return WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide(text), int(text.size()), to, size,
                                   nullptr, &lossy);
    };
    QByteArray result(convert(nullptr, 0), '\0');
    convert(result.data(), int(result.size()));
    return lossy ? QByteArray() : result;
}

/// The path in the old form that has no characters of its own script.
QString shortPath(const QString &path)
{
    std::array<wchar_t, MAX_PATH> result{};
    const DWORD length = GetShortPathNameW(wide(path), result.data(), DWORD(result.size()));
    return length && length < result.size() ? QString::fromWCharArray(result.data(), int(length)) : QString();
}

} // namespace

std::vector<Entry> read()
{
    std::vector<Entry> entries;
    const Handle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    if (snapshot.get() == INVALID_HANDLE_VALUE)
        return entries;
    PROCESSENTRY32W process{};
    process.dwSize = sizeof(process);
    for (BOOL more = Process32FirstW(snapshot.get(), &process); more;
         more = Process32NextW(snapshot.get(), &process)) {
        if (process.th32ProcessID != GetCurrentProcessId())
            entries.push_back({process.th32ProcessID, QString::fromWCharArray(process.szExeFile)});
    }
    return entries;
}

QString programOf(qint64 process)
{
    const Handle handle(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, DWORD(process)));
    DWORD exitCode = 0;
    if (!handle || !GetExitCodeProcess(handle.get(), &exitCode) || exitCode != STILL_ACTIVE)
        return {};
    std::array<wchar_t, 1024> path{};
    auto length = DWORD(path.size());
    if (!QueryFullProcessImageNameW(handle.get(), 0, path.data(), &length))
        return {};
    return QFileInfo(QDir::fromNativeSeparators(QString::fromWCharArray(path.data(), int(length))))
        .fileName();
}

// Quoted, so that the system takes a path with blanks for one program and not for the first that fits.
std::optional<qint64> start(const QString &path)
{
    constexpr UINT LastError = 31;
    const QString native = QDir::toNativeSeparators(path);
    QByteArray program = ansi(native);
    if (program.isEmpty())
        program = ansi(shortPath(native));
    if (program.isEmpty() || WinExec(QByteArray('"' + program + '"').constData(), SW_HIDE) <= LastError)
        return std::nullopt;
    return 0; // WinExec doesn't tell
}

bool end(qint64 process)
{
    const Handle handle(OpenProcess(PROCESS_TERMINATE, FALSE, DWORD(process)));
    return handle && TerminateProcess(handle.get(), 0);
}

} // namespace processlist
