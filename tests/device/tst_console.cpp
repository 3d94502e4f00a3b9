#include "CommandRows.h"
#include "ConnectedKeyboard.h"
#include "ConsoleLog.h"
#include "KeyMatrix.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

/// The engineering console as its user meets it.
class TestConsole : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableShowsTheCatalogue();
    void editShowsTheCommandAndSendsNothing();
    void clickTogglesTheLightSwitch();
    void rowIsSent_data();
    void rowIsSent();
    void commandLineIsSent_data();
    void commandLineIsSent();
    void writeWaitsForTheReadSequence();
    void repliesStandInTheirRow();
    void lightReplyStandsInTheSettingRow();
    void logFormat_data();
    void logFormat();
    void logShowsTheLastBurst();
    void savedMatrixBecomesTheDefault();

private:
    QPoint cell(QTableView *view, int row, int column);
};

QPoint TestConsole::cell(QTableView *view, int row, int column)
{
    return view->visualRect(view->model()->index(row, column)).center();
}

void TestConsole::tableShowsTheCatalogue()
{
    const CommandRows rows;
    QCOMPARE(rows.rowCount(), 39);
    QCOMPARE(rows.columnCount(), 10);
    QCOMPARE(rows.horizontalHeaderItem(9)->text(), QStringLiteral("Byte7\nB"));
    const int led = rows.rowOf(0x07);
    QCOMPARE(rows.item(led, 0)->text(), QStringLiteral("CMD_SET_LEDPARAM"));
    QCOMPARE(rows.rowBytes(led).toHex(), QByteArray("0701030307ffffff"));
    QCOMPARE(rows.item(led, 1)->foreground().color(), QColor(Qt::red));
    QVERIFY(rows.item(led, 0)->font().italic());
    QCOMPARE(rows.item(0, 0)->foreground().color(), QColor(Qt::blue));
    QVERIFY(!rows.item(0, 2)->isEditable());
    QVERIFY(rows.item(0, 3)->isEditable());
    QCOMPARE(rows.rowOf(0x0F), -1);
}

void TestConsole::editShowsTheCommandAndSendsNothing()
{
    ConnectedKeyboard link("wired-2ff");
    QVERIFY(link.readAll());
    link.keyboard->clearLog();
    CommandRows *rows = link.connection.commandRows();
    auto *line = link.control<QLineEdit>("lineEditCmd");
    rows->item(rows->rowOf(0x50), CommandRows::Byte1 + 2)->setText(QStringLiteral("17"));
    QCOMPARE(line->text(), QStringLiteral("50 00 00 11 00 00 00 00"));
    rows->item(rows->rowOf(0x50), CommandRows::Byte1)->setText(QStringLiteral("no number"));
    QCOMPARE(line->text(), QStringLiteral("50 00 00 11 00 00 00 00"));
    link.settle();
    QCOMPARE(link.keyboard->frameCount(), size_t(0));
}

void TestConsole::clickTogglesTheLightSwitch()
{
    ConnectedKeyboard link("wired-2ff");
    link.connection.show();
    auto *view = link.control<QTableView>("tableView");
    CommandRows *rows = link.connection.commandRows();
    const int row = rows->rowOf(0x05);
    view->scrollTo(rows->index(row, 3));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cell(view, row, 3));
    QCOMPARE(rows->rowBytes(row).toHex(), QByteArray("0500010000000000"));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cell(view, row, 0));
    QCOMPARE(rows->rowBytes(row).toHex(), QByteArray("0500010000000000"));
    QCOMPARE(link.control<QLineEdit>("lineEditCmd")->text(), QStringLiteral("05 00 01 00 00 00 00 00"));
}

void TestConsole::rowIsSent_data()
{
    QTest::addColumn<bool>("doubleClick");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("frames");
    QTest::newRow("double-click on the command") << true << 2 << 1;
    QTest::newRow("double-click on a byte opens its editor") << true << 3 << 0;
    QTest::newRow("right-click on the name") << false << 0 << 1;
    QTest::newRow("right-click on a byte") << false << 4 << 0;
}

void TestConsole::rowIsSent()
{
    QFETCH(bool, doubleClick);
    QFETCH(int, column);
    ConnectedKeyboard link("wired-2ff");
    QVERIFY(link.readAll());
    link.connection.show();
    link.keyboard->clearLog();
    auto *view = link.control<QTableView>("tableView");
    const int row = link.connection.commandRows()->rowOf(0x06);
    const QPoint at = cell(view, row, column);
    if (doubleClick) {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at);
    } else {
        Q_EMIT view->customContextMenuRequested(at);
    }
    QTEST(int(link.keyboard->frameCount()), "frames");
}

void TestConsole::commandLineIsSent_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("frame");
    QTest::newRow("blanks around") << QStringLiteral("  86 ") << QByteArray("86 00 00 00 00 00 00 79");
    QTest::newRow("wrong checksum is mended")
        << QStringLiteral("8F 00 00 00 00 00 00 11") << QByteArray("8F 00 00 00 00 00 00 70");
    QTest::newRow("partly hex") << QStringLiteral("86 zz") << QByteArray("86 00 00 00 00 00 00 79");
    QTest::newRow("not hex") << QStringLiteral("zz") << QByteArray();
    QTest::newRow("empty") << QString() << QByteArray();
}

void TestConsole::commandLineIsSent()
{
    QFETCH(QString, text);
    ConnectedKeyboard link("wired-2ff");
    QVERIFY(link.readAll());
    link.keyboard->clearLog();
    link.control<QLineEdit>("lineEditCmd")->setText(text);
    link.control<QPushButton>("pushButtonWrite")->click();
    QTEST(link.frame(0), "frame");
}

void TestConsole::writeWaitsForTheReadSequence()
{
    ConnectedKeyboard link("wired-2ff");
    QVERIFY(link.readAll());
    link.connection.DoReadAll();
    link.keyboard->clearLog();
    const QString before = link.control<QLineEdit>("lineEditCmd")->text();
    link.control<QPushButton>("pushButtonWrite")->click();
    link.connection.BuildRowCommand(link.connection.commandRows()->rowOf(0x01), true);
    QCOMPARE(link.keyboard->frameCount(), size_t(0));
    QCOMPARE(link.control<QLineEdit>("lineEditCmd")->text(), before);
}

void TestConsole::repliesStandInTheirRow()
{
    ConnectedKeyboard link("wired-2ff");
    link.keyboard->edit([](sim::KeyboardState &state) { state.settings.debounce = 9; });
    QVERIFY(link.readAll());
    CommandRows *rows = link.connection.commandRows();
    QCOMPARE(rows->byte(rows->rowOf(0x86), 1), quint8(9));
    QCOMPARE(rows->byte(rows->rowOf(0x06), 1), quint8(0));
}

void TestConsole::lightReplyStandsInTheSettingRow()
{
    ConnectedKeyboard link("wired-2ff");
    link.keyboard->faultOnCommand(0x87, virtualhid::Fault::reply({0x87, 5, 1, 2, 9, 10, 11, 12}));
    QVERIFY(link.readAll());
    CommandRows *rows = link.connection.commandRows();
    // Effect, speed turned round, and brightness; the rest of the row goes out as it was.
    QCOMPARE(rows->rowBytes(rows->rowOf(0x07)).toHex(), QByteArray("0705030207ffffff"));
    QCOMPARE(rows->rowBytes(rows->rowOf(0x87)).toHex(), QByteArray("87050102090a0b0c"));
}

void TestConsole::logFormat_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("one") << QByteArray::fromHex("8f") << QStringLiteral("8F");
    QTest::newRow("four") << QByteArray::fromHex("8f000102") << QStringLiteral("8F 00 01 02");
    QTest::newRow("nine") << QByteArray::fromHex("8f0001020304050607")
                          << QStringLiteral("8F 00 01 02  03 04 05 06  07");
}

void TestConsole::logFormat()
{
    QFETCH(QByteArray, bytes);
    QTEST(ConsoleLog::format(bytes), "text");
}

void TestConsole::logShowsTheLastBurst()
{
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
