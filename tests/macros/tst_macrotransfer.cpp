#include "ConnectedKeyboard.h"
#include "KeyMatrix.h"

#include <QTest>

namespace {

constexpr quint8 KeyA = 0x04;

QByteArray stream(qsizetype length)
{
    QByteArray bytes(length, '\0');
    for (qsizetype i = 0; i < length; ++i)
        bytes[i] = char(i + 1);
    return bytes;
}

} // namespace

/// Macros on their way to the keyboard.
class TestMacroTransfer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { shared.reset(); }
    void arrives_data();
    void arrives();
    void keyboardVanishes();
    void waitsForARead();

private:
    std::unique_ptr<ConnectedKeyboard> shared; ///< of the tests that leave it well
};

void TestMacroTransfer::initTestCase()
{
    shared = std::make_unique<ConnectedKeyboard>("wired-2ff");
    QVERIFY(shared->readAll());
}

void TestMacroTransfer::arrives_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("pages");
    QTest::newRow("empty macro") << 0 << 1;
    QTest::newRow("one page to the last byte") << 54 << 1;
    QTest::newRow("one byte more") << 55 << 2;
    QTest::newRow("all of the keyboard's room") << 254 << 5;
}

void TestMacroTransfer::arrives()
{
    QFETCH(int, length);
    QFETCH(int, pages);
    ConnectedKeyboard &device = *shared;
    device.settle();
    device.keyboard->clearLog();
    device.connection.DoSetMacro(KeyA, 300, 2, 49, stream(length));
    QVERIFY(device.waitForFrames(size_t(pages) + 1));
    device.settle();

    QCOMPARE(device.commands(), QByteArray("0B ").repeated(pages) + "0A");
    const sim::KeyboardState state = device.keyboard->state();
    const sim::Macro *macro = state.macros.find(49);
    QVERIFY(macro && macro->complete);
    QCOMPARE(int(macro->repeat()), 300);
    QCOMPARE(int(macro->blob.size()), pages * 56);
    QCOMPARE(bytesOf(macro->events()).first(length), stream(length));
    QCOMPARE(bytesOf(macro->events()).mid(length).count('\0'), pages * 56 - 2 - length);
    const quint8 position = keys::PositionOfCode(KeyA);
    KeyEntry entry;
    device.connection.GetKeyEntry(entry, position, 0);
    QCOMPARE(bytesOf(entry.bytes).toHex(), QByteArray("09023100"));
    QCOMPARE(bytesOf(state.keys.key(state.profile, 0, position)), bytesOf(entry.bytes));
    QCOMPARE(device.keyboard->frameFaults(), sim::FrameFaults{});
}

void TestMacroTransfer::keyboardVanishes()
{
    shared.reset();
    ConnectedKeyboard device("wired-2ff");
    QVERIFY(device.readAll());
    device.settle();
    device.keyboard->clearLog();
    device.keyboard->faultAtFrame(3, virtualhid::Fault::unplugged());
    device.connection.DoSetMacro(KeyA, 1, 0, 7, stream(5000));
    QVERIFY(device.waitForFrames(3));
    device.settle();
    QVERIFY(device.keyboard->frameCount() <= 4);

    // The next keyboard gets its macro whole, without rests of the one before it.
    device.readDone.clear();
    device.keyboard = virtualhid::VirtualBus::instance().plug("wired-2ff");
    device.connection.deviceChanged();
    QTRY_VERIFY_WITH_TIMEOUT(device.connection.isConnected() && !device.connection.isReadingAll() &&
                                 !device.readDone.isEmpty(),
                             20000);
    device.settle();
    device.keyboard->clearLog();
    device.connection.DoSetMacro(KeyA, 1, 0, 7, stream(200));
    QVERIFY(device.waitForFrames(5));
    device.settle();
    QCOMPARE(device.commands(), QByteArray("0B 0B 0B 0B 0A"));
    QVERIFY(device.keyboard->state().macros.find(7)->complete);
}

void TestMacroTransfer::waitsForARead()
{
    ConnectedKeyboard device("wired-2ff");
    QVERIFY(device.readAll());
    device.settle();
    device.keyboard->clearLog();
    device.connection.DoReadAll();
    device.connection.DoSetMacro(KeyA, 1, 0, 1, stream(100));
    QVERIFY(device.readDone.wait(20000));
    device.settle();
    QVERIFY(device.keyboard->state().macros.find(1)->complete);
    QVERIFY(!device.commands().contains("0A")); // the key keeps its function
    QCOMPARE(device.commands().split(' ').count("0B"), 2);
}

QTEST_MAIN(TestMacroTransfer)
#include "tst_macrotransfer.moc"
