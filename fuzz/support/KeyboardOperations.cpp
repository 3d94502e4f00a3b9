#include "KeyboardOperations.h"

#include "DialogDeviceConnect.h"
#include "FuzzInput.h"

#include <array>
#include <QColor>

namespace {

using Connection = DialogDeviceConnect;

KeyEntry entryFrom(FuzzInput &input)
{
    return {{input.byte(), input.byte(), input.byte(), input.byte()}};
}

void look(FuzzInput &input, Connection &connection)
{
    KeyEntry entry;
    QStringList names;
    std::array<quint16, 4> times{};
    connection.GetKeyEntry(entry, input.byte(), input.byte());
    connection.GetKeyDisplay(names, input.byte());
    connection.GetMagnetism(input.byte(), input.byte());
    connection.SetMagnetism(input.byte(), input.byte(), input.word());
    connection.GetKeyMode(input.byte());
    connection.GetKeyOption(input.byte());
    connection.GetKbOption(input.byte());
    connection.GetSleepTimes(times);
}

constexpr std::array Operations{
    +[](FuzzInput &, Connection &to) { to.DoReadAll(); },
    +[](FuzzInput &in, Connection &to) { to.DoSendCommand(in.byte(), in.byte(), in.byte() & 1); },
    +[](FuzzInput &in, Connection &to) {
        to.DoSendHex(QString::fromLatin1(in.text().toHex()), in.byte() & 1);
    },
    +[](FuzzInput &in, Connection &to) { to.DoSetProfile(in.byte()); },
    +[](FuzzInput &, Connection &to) { to.DoFactoryReset(); },
    +[](FuzzInput &in, Connection &to) { to.BuildRowCommand(in.byte(), in.byte() & 1); },
    +[](FuzzInput &in, Connection &to) { to.DoSetKey(in.byte(), entryFrom(in), in.byte(), in.byte()); },
    +[](FuzzInput &in, Connection &to) { to.DoSetFn(in.byte(), entryFrom(in)); },
    +[](FuzzInput &in, Connection &to) { to.DoSetKeyCode(in.byte(), in.byte() & 1, in.byte()); },
    +[](FuzzInput &in, Connection &to) { to.DoSetFnCode(in.byte(), in.byte() & 1); },
    +[](FuzzInput &in, Connection &to) { to.DoResetKey(in.byte()); },
    +[](FuzzInput &in, Connection &to) {
        to.DoSetMacro(in.byte(), in.word(), in.byte(), in.byte(), in.text());
    },
    +[](FuzzInput &in, Connection &to) { to.DoSetMagnetism(in.byte(), in.byte(), in.word(), in.byte()); },
    +[](FuzzInput &in, Connection &to) { to.DoSetKeyFlag(in.byte(), in.byte() & 1); },
    +[](FuzzInput &, Connection &to) { to.DoStartKeyTest(); },
    +[](FuzzInput &, Connection &to) { to.DoStopKeyTest(); },
    +[](FuzzInput &, Connection &to) { to.DoStartCalibration(); },
    +[](FuzzInput &, Connection &to) { to.DoStopCalibration(); },
    +[](FuzzInput &in, Connection &to) { to.DoSetKbOption(in.byte(), in.byte()); },
    +[](FuzzInput &in, Connection &to) { to.DoSetSleepTime(in.word(), in.byte()); },
    +[](FuzzInput &in, Connection &to) { to.DoSetLedEffect(qint8(in.byte()), in.byte()); },
    +[](FuzzInput &in, Connection &to) { to.DoSetLedColor(QColor(in.byte(), in.byte(), 0), in.byte()); },
    +[](FuzzInput &in, Connection &to) { to.DoSetSideLed(in.text()); },
    +[](FuzzInput &in, Connection &to) { to.DoWriteUserPic(in.byte(), in.text()); },
    +[](FuzzInput &in, Connection &to) { to.DoReadUserPic(in.byte()); },
    +[](FuzzInput &, Connection &to) { to.deviceChanged(); },
    look,
};

} // namespace

void callOperation(FuzzInput &input, Connection &connection)
{
    Operations[input.byte() % Operations.size()](input, connection);
}
