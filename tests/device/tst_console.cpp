#include "CommandRows.h"
#include "ConnectedKeyboard.h"
#include "ConsoleLog.h"
#include "KeyMatrix.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

/// The engineering console as its user meets it.
class TestConsole : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableShowsTheCatalogueAndReplies();
    void commandLineIsSent();
    void logShowsTheLastBurst();
    void savedMatrixBecomesTheDefault();

private:
};

void TestConsole::tableShowsTheCatalogueAndReplies()
{
    ConnectedKeyboard link("wired-2ff");
    link.keyboard->edit([](sim::KeyboardState &state) { state.settings.debounce = 9; });
    link.keyboard->faultOnCommand(0x87, virtualhid::Fault::reply({0x87, 5, 1, 2, 9, 10, 11, 12}));
    const CommandRows *rows = link.connection.commandRows();
    const int led = rows->rowOf(0x07);
    QCOMPARE(rows->rowCount(), 39);
    QCOMPARE(rows->item(led, 0)->text(), QStringLiteral("CMD_SET_LEDPARAM"));
    QCOMPARE(rows->rowBytes(led).toHex(), QByteArray("0701030307ffffff"));
    QCOMPARE(rows->rowOf(0x0F), -1);
    QVERIFY(link.readAll());
    QCOMPARE(rows->byte(rows->rowOf(0x86), 1), quint8(9));
    QCOMPARE(rows->byte(rows->rowOf(0x06), 1), quint8(0));
    // Effect, speed turned round, and brightness; the rest of the row goes out as it was.
    QCOMPARE(rows->rowBytes(led).toHex(), QByteArray("0705030207ffffff"));
    QCOMPARE(rows->rowBytes(rows->rowOf(0x87)).toHex(), QByteArray("87050102090a0b0c"));
}

void TestConsole::commandLineIsSent()
{
    ConnectedKeyboard link("wired-2ff");
    QVERIFY(link.readAll());
    const auto sent = [&link](const char *text) {
        link.settle();
        link.keyboard->clearLog();
        link.control<QLineEdit>("lineEditCmd")->setText(QLatin1String(text));
        link.control<QPushButton>("pushButtonWrite")->click();
        return link.frame(0);
    };
    QCOMPARE(sent("  86 "), QByteArray("86 00 00 00 00 00 00 79"));
    QCOMPARE(sent("8F 00 00 00 00 00 00 11"), QByteArray("8F 00 00 00 00 00 00 70")); // is mended
    QCOMPARE(sent("86 zz"), QByteArray("86 00 00 00 00 00 00 79"));
    QCOMPARE(sent("zz"), QByteArray());
    QCOMPARE(sent(""), QByteArray());
    link.connection.DoReadAll();
    link.keyboard->clearLog();
    link.control<QPushButton>("pushButtonWrite")->click();
    QCOMPARE(link.keyboard->frameCount(), size_t(0)); // while the state is read
}

void TestConsole::logShowsTheLastBurst()
{
    QCOMPARE(ConsoleLog::format({}), QString());
    QCOMPARE(ConsoleLog::format(QByteArray::fromHex("8f0001020304050607")),
             QStringLiteral("8F 00 01 02  03 04 05 06  07"));
    QPlainTextEdit view;
    ConsoleLog log(&view);
    log.add("\x01", false);
    log.add("\x02", true);
    QCOMPARE(view.toPlainText(), QStringLiteral("01\n02\n"));
    QTest::qWait(300);
    log.add("\x03", false);
    QCOMPARE(view.toPlainText(), QStringLiteral("01\n02\n\n03"));
    QTest::qWait(600);
    QVERIFY(view.toPlainText().endsWith(QStringLiteral("03")));
    log.add("\x04", false);
    QCOMPARE(view.toPlainText(), QStringLiteral("04"));
}

void TestConsole::savedMatrixBecomesTheDefault()
{
    ConnectedKeyboard link("wired-2ff");
    const QByteArray factory = keys::defaultKeyMatrix();
    link.keyboard->edit([](sim::KeyboardState &state) { state.keys.setKey(0, 0, 3, {0, 0, 0x68, 0}); });
    QVERIFY(link.readAll());
    QTest::ignoreMessage(QtDebugMsg, "  0,  0,104,  0,  //   3  0x00006800");
    link.control<QPushButton>("pushButtonSaveMatrix")->click();
    QCOMPARE(keys::CodeOfPosition(3), quint8(0x68));
    QVERIFY(keys::SetDefaultKeyMap(factory));
}

QTEST_MAIN(TestConsole)
#include "tst_console.moc"
