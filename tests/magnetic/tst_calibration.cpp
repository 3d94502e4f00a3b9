#include "ConnectedKeyboard.h"
#include "KeyboardButton.h"
#include "KeyMatrix.h"
#include "LinearFixing1.h"
#include "LinearFixing2.h"

#include <functional>
#include <QApplication>
#include <QPushButton>
#include <QtEndian>
#include <QTest>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

constexpr quint8 Esc = 0x29;
constexpr quint8 W = 0x1A;

QByteArray codes(std::initializer_list<quint8> list)
{
    return {reinterpret_cast<const char *>(list.begin()), qsizetype(list.size())};
}

} // namespace

/// The calibration as a user goes through it, on one keyboard that is shared.
class TestCalibration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(device.readAll()); }
    void readingsThatCount_data();
    void readingsThatCount();
    void everyWayOutEndsTheCalibration_data();
    void everyWayOutEndsTheCalibration();
    void pressedKeysTurnOrangeUntilTheKeyboardVanishes();

private:
    void calibrate(const std::function<void(LinearFixing2 &)> &steps);
    static QByteArray orangeKeys(const LinearFixing2 &progress);

    ConnectedKeyboard device{"wired-500"};
};

/// Starts a calibration and takes the steps in its window; comes back when the guide is left.
void TestCalibration::calibrate(const std::function<void(LinearFixing2 &)> &steps)
{
    LinearFixing1 guide({}, {});
    bool opened = false;
    QTimer::singleShot(0, &guide, [&opened, &steps] {
        auto *progress = qobject_cast<LinearFixing2 *>(QApplication::activeModalWidget());
        opened = progress != nullptr;
        if (!progress)
            return;
        steps(*progress);
        progress->reject(); // also when a step has failed
    });
    guide.show();
    guide.findChild<QPushButton *>(QStringLiteral("pushButtonStart"))->click();
    QVERIFY(opened && !guide.isVisible());
    QCOMPARE(guide.result(), int(QDialog::Rejected));
}

/// Codes of the keys that are painted in orange, in the order of the board.
QByteArray TestCalibration::orangeKeys(const LinearFixing2 &progress)
{
    QByteArray found;
    const auto buttons = progress.findChildren<KeyboardButton *>();
    for (KeyboardButton *key : buttons) {
        if (key->grab().toImage().pixel(8, 8) == 0xFFFF9052)
            found += char(key->code());
    }
    return found;
}

void TestCalibration::readingsThatCount_data()
{
    QTest::addColumn<QByteArray>("scan");
    QTest::addColumn<QByteArray>("orange");
    using Readings = QList<std::pair<int, int>>;
    const auto row = [](const char *name, int length, const Readings &readings, const QByteArray &orange) {
        QByteArray scan(length, '\0');
        for (const auto &[position, reading] : readings)
            qToLittleEndian(quint16(reading), scan.data() + 2 * position);
        QTest::newRow(name) << scan << orange;
    };
    row("from 700 on", 256, {{0, 699}, {14, 700}, {65, 0xFFFF}}, codes({W, keys::FnKeyCode}));
    row("not where there is no key", 256, {{10, 720}, {92, 64}, {127, 720}}, {});
    row("only as far as the data reaches", 31, {{0, 720}, {14, 720}}, codes({Esc, W}));
    row("not past the last position", 1024, {{0, 720}, {142, 720}}, codes({Esc}));
}

void TestCalibration::readingsThatCount()
{
    QFETCH(QByteArray, scan);
    LinearFixing2 progress(QRect(0, 0, 1280, 900));
    progress.show();
    QTRY_VERIFY(!progress.findChild<KeyboardButton *>()->isEnabled());
    Q_EMIT device.connection.onCalibration(scan);
    QTEST(orangeKeys(progress), "orange");
    Q_EMIT device.connection.onCalibration(QByteArray(256, '\0'));
    QTEST(orangeKeys(progress), "orange"); // for good
}

void TestCalibration::everyWayOutEndsTheCalibration_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("finished") << QStringLiteral("pushButtonFinish");
    QTest::newRow("closed by the system") << QString();
}

void TestCalibration::everyWayOutEndsTheCalibration()
{
    QFETCH(QString, button);
    device.keyboard->clearLog();
    calibrate([this, button](LinearFixing2 &progress) {
        QVERIFY(device.keyboard->calibrating());
        auto *finish = progress.findChild<QPushButton *>(QStringLiteral("pushButtonFinish"));
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space})
            QTest::keyClick(finish, key);
        QVERIFY(progress.isVisible()); // a key that is calibrated presses no button
        if (button.isEmpty())
            progress.close();
        else
            progress.findChild<QPushButton *>(button)->click();
        QVERIFY(!progress.isVisible());
    });
    device.settle();
    QVERIFY(!device.keyboard->calibrating());
    QCOMPARE(device.frame(0, 2), QByteArray("1E 01"));
    QCOMPARE(device.frame(device.keyboard->frameCount() - 1, 2), QByteArray("1E 00"));
}

void TestCalibration::pressedKeysTurnOrangeUntilTheKeyboardVanishes()
{
    device.connection.DoReadAll(); // which a start waits for
    calibrate([this](LinearFixing2 &progress) {
        QTRY_VERIFY_WITH_TIMEOUT(device.keyboard->calibrating(), 20000);
        for (const quint8 code : {W, Esc}) {
            device.keyboard->press(keys::PositionOfCode(code), sim::FullTravel, 10ms, 10ms);
            QTRY_VERIFY(orangeKeys(progress).contains(char(code)));
        }
        virtualhid::VirtualBus::instance().unplug(device.keyboard);
        QTest::qWait(300); // of scans that nobody answers
        QVERIFY(progress.isVisible());
        QCOMPARE(orangeKeys(progress), codes({Esc, W}));
    });
}

QTEST_MAIN(TestCalibration)
#include "tst_calibration.moc"
