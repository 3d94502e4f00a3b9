#include "Framing.h"

#include <QTest>
#include <vector>

class TestFraming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandIsClosedAndWrapped_data();
    void commandIsClosedAndWrapped();
    void replyIsTakenOut_data();
    void replyIsTakenOut();
    void noticeIsToldFromReply();
};

void TestFraming::commandIsClosedAndWrapped_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("logical");
    const auto row = [](const char *name, const char *command, const char *logical) {
        QTest::newRow(name) << QByteArray::fromHex(command) << QByteArray::fromHex(logical);
    };
    row("one byte becomes a whole frame", "8F", "8F00000000000070");
    row("lighting keeps its eighth byte", "0701030307FFFFFF", "0701030307FFFFFFED");
    row("magnet page", "E5FE0102", "E5FE010200000019");
    row("a byte at the checksum's place is lost", "06030000000000AA", "06030000000000F6");
}

void TestFraming::commandIsClosedAndWrapped()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, logical);
    const QByteArray closed = framing::close(command);
    QCOMPARE(closed.first(logical.size()), logical);
    QCOMPARE(closed.mid(logical.size()).count('\0'), closed.size() - logical.size());

    QCOMPARE(framing::wrapWired(closed), QByteArray(1, '\0') + closed.first(64));
    QCOMPARE(framing::wrapWireless(closed), QByteArray::fromHex("0655") + closed.first(64));
}

void TestFraming::replyIsTakenOut_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("wiredLength");
    QTest::addColumn<int>("wirelessLength");
    QTest::newRow("failed") << -1 << -1 << -1;
    QTest::newRow("nothing") << 0 << -1 << -1;
    QTest::newRow("the report id alone") << 1 << 0 << 0;
    QTest::newRow("one byte") << 3 << 2 << 1;
    QTest::newRow("whole") << 66 << 65 << 64;
    QTest::newRow("more than the buffer holds") << 5000 << 1023 << 1022;
}

void TestFraming::replyIsTakenOut()
{
    QFETCH(int, result);
    QFETCH(int, wiredLength);
    QFETCH(int, wirelessLength);
    const std::vector<quint8> buffer(1024, 0x11);
    const QByteArray wired = framing::unwrapWired(buffer, result);
    const QByteArray wireless = framing::unwrapWireless(buffer, result);
    QCOMPARE(wired.isNull() ? -1 : int(wired.size()), wiredLength);
    QCOMPARE(wireless.isNull() ? -1 : int(wireless.size()), wirelessLength);
}

void TestFraming::noticeIsToldFromReply()
{
    QVERIFY(framing::isWirelessNotice(std::vector<quint8>{0x06, 0x77, 0x00}));
    QVERIFY(!framing::isWirelessNotice(std::vector<quint8>{0x06, 0x55, 0x77}));
    QVERIFY(!framing::isWirelessNotice(std::vector<quint8>{0x06}));
}

QTEST_APPLESS_MAIN(TestFraming)
#include "tst_framing.moc"
