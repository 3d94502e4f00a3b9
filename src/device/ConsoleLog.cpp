#include "ConsoleLog.h"

#include <chrono>
#include <QPlainTextEdit>

using namespace std::chrono_literals;

namespace {
constexpr auto BurstEnd = 500ms;
constexpr qsizetype GroupLength = 12; // four bytes of two digits and a blank
} // namespace

ConsoleLog::ConsoleLog(QPlainTextEdit *logView, QObject *parent)
    : QObject(parent)
    , view(logView)
{
    logClearTimer.setSingleShot(true);
    logClearTimer.setTimerType(Qt::PreciseTimer);
    logClearTimer.setInterval(BurstEnd);
    connect(&logClearTimer, &QTimer::timeout, this, [this] { logClearPending = true; });
}

QString ConsoleLog::format(const QByteArray &bytes)
{
    QString text = QString::fromLatin1(bytes.toHex(' ').toUpper());
    for (qsizetype at = text.size() / GroupLength * GroupLength; at > 0; at -= GroupLength)
        text.insert(at, QLatin1Char(' '));
    return text;
}

void ConsoleLog::add(const QByteArray &bytes, bool lineEnd)
{
    if (!view)
        return;
    if (logClearPending) {
        view->clear();
        logClearPending = false;
    }
    view->appendPlainText(format(bytes));
    if (lineEnd)
        view->appendPlainText(QString());
    logClearTimer.start();
}
