// Any text as the colour map of a light work that the user chooses on the light page and writes to the
// keyboard, and any bytes as a picture that the keyboard sends.

#include "DialogDeviceConnect.h"
#include "FrameLight.h"
#include "FuzzClock.h"
#include "FuzzInput.h"
#include "FuzzProgram.h"
#include "LightWorksModel.h"
#include "VirtualBus.h"

#include <QAbstractButton>
#include <QPlainTextEdit>
#include <QTableView>

using namespace std::chrono_literals;

namespace {

/// A keyboard, the connection to it and the page, once for all runs.
struct Page
{
    Page()
    {
        delete connection.findChild<QPlainTextEdit *>(); // the log takes most of the time
        connection.DoConnectDevice(0x3151, 0x5031, false, QStringLiteral("id"), {});
        fuzzclock::letTimePass(1s);
    }

    virtualhid::DevicePtr keyboard = virtualhid::VirtualBus::instance().plug("wired-2ff");
    DialogDeviceConnect connection;
    FrameLight frame;
    LightWorksModel *works = frame.findChild<LightWorksModel *>();
    QTableView *table = frame.findChild<QTableView *>(QStringLiteral("tableView"));
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static auto &page = *new Page;
    FuzzInput input(data, size);
    const QByteArray picture = input.text();
    page.works->setWorks({{{}, QString::fromUtf8(picture), input.rest()}});
    Q_EMIT page.table->clicked(page.works->index(0, LightWorksModel::NameColumn));
    const QByteArray map = QByteArray::fromHex(page.works->works().constFirst().data);
    if (picture.size() % 16 == 1) {
        page.keyboard->clearLog();
        page.connection.DoWriteUserPic(0, map);
        fuzzclock::letTimePass(500ms);
        const sim::KeyboardState state = page.keyboard->state();
        const sim::ByteView sent = state.pictures.bytes(0);
        for (qsizetype i = 0; i < qsizetype(sent.size()); ++i)
            fuzzprogram::require(quint8(i < map.size() ? map.at(i) : 0) == sent[std::size_t(i)]);
    }
    Q_EMIT page.connection.onGetPictrue(picture);
    return 0;
}
