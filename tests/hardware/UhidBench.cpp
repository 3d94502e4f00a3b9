#include "UhidBench.h"

#include <QDeadlineTimer>
#include <QDebug>

namespace {

constexpr int Patience = 20000; ///< milliseconds; the machine is an emulated one

QByteArray number(int value)
{
    return QByteArray::number(value);
}

} // namespace

UhidBench::UhidBench(const QString &program, const QString &trafficFile)
    : traffic(trafficFile)
{
    if (!traffic.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        qWarning() << "Can't write" << trafficFile;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, {QStringLiteral("--verbose")});
    process.waitForStarted(Patience);
}

UhidBench::~UhidBench()
{
    process.closeWriteChannel();
    if (!process.waitForFinished(Patience))
        process.kill();
}

QByteArray UhidBench::ask(const QByteArray &command, const QByteArray &answer)
{
    process.write(command + '\n');
    const QDeadlineTimer limit(Patience);
    while (!limit.hasExpired() && process.state() == QProcess::Running) {
        if (!process.canReadLine() && !process.waitForReadyRead(int(limit.remainingTime())))
            break;
        while (process.canReadLine()) {
            const QByteArray line = process.readLine().trimmed();
            traffic.write(line + '\n');
            if (line.startsWith(answer))
                return line.mid(answer.size()).trimmed();
            if (line.startsWith("error")) {
                qWarning() << command << line;
                return {};
            }
        }
    }
    qWarning() << "No answer from the bench to" << command;
    return {};
}

int UhidBench::plug(const QByteArray &model)
{
    return ask("plug " + model, "ready").split(' ').constFirst().toInt();
}

bool UhidBench::unplug(int device)
{
    return ask("unplug " + number(device), "gone").toInt() == device;
}

void UhidBench::press(int device, int position, int holdMs)
{
    process.write("press " + number(device) + ' ' + number(position) + " 720 " + number(holdMs) + '\n');
    process.waitForBytesWritten(Patience);
}

void UhidBench::setBattery(int device, int percent)
{
    process.write("battery " + number(device) + ' ' + number(percent) + '\n');
    process.waitForBytesWritten(Patience);
}

QByteArray UhidBench::key(int device, int position)
{
    const QByteArray what = number(device) + " 0 " + number(position);
    return ask("key " + what, "key " + what);
}

int UhidBench::state(int device, const QByteArray &word)
{
    const QByteArrayList words = ask("state " + number(device), "state " + number(device)).split(' ');
    const auto found = words.indexOf(word);
    return found < 0 ? -1 : words.value(found + 1).toInt();
}

QByteArray UhidBench::faults(int device)
{
    const QByteArray status = ask("status", "device " + number(device));
    return status.mid(status.indexOf("badchecksum"));
}
