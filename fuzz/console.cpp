// Any text in the console's command line and in its table, sent to a keyboard that answers as it does.

#include "CommandRows.h"
#include "FuzzClock.h"
#include "FuzzInput.h"
#include "FuzzProgram.h"
#include "KeptConnection.h"
#include "KeyMatrix.h"

#include <QAbstractButton>
#include <QLineEdit>

using namespace std::chrono_literals;

namespace {

constexpr int MostActions = 12;
constexpr auto AnswerTime = 40ms;

void act(FuzzInput &input, DialogDeviceConnect &connection)
{
    const auto press = [&connection](const char *button) {
        connection.findChild<QAbstractButton *>(QLatin1String(button))->click();
    };
    const auto type = [&connection](const char *edit, const QByteArray &text) {
        connection.findChild<QLineEdit *>(QLatin1String(edit))->setText(QString::fromUtf8(text));
    };
    switch (input.byte() % 8) {
    case 0:
        return press("pushButtonRead");
    case 1:
        return press("pushButtonSaveMatrix");
    case 2:
        type("lineEditVID", input.text());
        type("lineEditPID", input.text());
        return press(input.byte() & 1 ? "pushButtonConnect" : "pushButtonRefresh");
    case 3: {
        const QModelIndex cell = connection.commandRows()->index(input.byte() % 39, input.byte() % 10);
        connection.commandRows()->setData(cell, QString::fromUtf8(input.text()));
        return connection.BuildRowCommand(cell.row(), input.byte() & 1);
    }
    case 4:
        return connection.DoSendHex(QString::fromUtf8(input.text()), input.byte() & 1);
    default:
        type("lineEditCmd", input.text());
        return press("pushButtonWrite");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QByteArray factoryMatrix = keys::defaultKeyMatrix();
    FuzzInput input(data, size);
    KeptConnection link("wired-500");
    for (int i = 0; i < MostActions && !input.isEmpty(); ++i) {
        act(input, link.connection);
        fuzzclock::letTimePass(AnswerTime);
    }
    fuzzprogram::require(keys::SetDefaultKeyMap(factoryMatrix));
    return 0;
}
