#include "KeyScanCode.h"
#include "Look.h"
#include "PageOnKeyboard.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

namespace {

constexpr quint16 KeyA = 0x1E;
constexpr quint16 KeyOne = 0x02;
constexpr QRgb Accent = 0xFF6329B6;

/// What this system calls a key natively.
quint32 nativeScan(quint16 scan)
{
    quint32 native = 0;
    while (native < 0x200 && platform::keyScanCode(native) != scan)
        ++native;
    return native;
}

} // namespace

/// The live travel and the test of the keys that the computer receives.
class TestKeyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void depthShows_data();
    void depthShows();
    void testRunsWhileItIsOn();
    void keysAreNamed();
    void heldAndSeenKeys();

private:
    void type(QEvent::Type type, quint16 scan, const char *text, bool repeat = false);
    QString names(const char *area) const;
    QString held() const { return names("scrollAreaWidgetContents0"); }
    QString seen() const { return names("scrollAreaWidgetContents1"); }
    void sample(int raw) const;
    int barEnd() const;
    int shownFrame() const;

    PageOnKeyboard shown;
    QWidget *ruler = shown.find<QWidget>("labelPress");
};

void TestKeyTest::initTestCase()
{
    QVERIFY(shown.device.readAll());
    shown.page.setFixedSize(1124, 740);
    shown.page.show();
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    shown.click("pushButtonSet4");
}

void TestKeyTest::init()
{
    for (const char *test : {"checkBoxKeytest0", "checkBoxKeytest1"}) {
        if (!shown.find(test)->isChecked())
            shown.click(test);
    }
}

/// The keyboard sends a depth, and the page takes it.
void TestKeyTest::sample(int raw) const
{
    QSignalSpy taken(&shown.device.connection, &DialogDeviceConnect::onKeyTest);
    sim::Bytes report{0x05, 0x1B, sim::Byte(raw), sim::Byte(raw >> 8)};
    report.resize(64);
    shown.device.keyboard->injectInput(sim::Channel::KeyTest, report);
    QVERIFY(taken.wait(1000));
}

/// Last row that the bar reaches, 0 if there is none.
int TestKeyTest::barEnd() const
{
    const QImage image = ruler->grab().toImage();
    int y = image.height() - 1;
    while (y > 0 && image.pixel((50 + image.width() - 30) / 2, y) != Accent)
        --y;
    return y;
}

/// Number of the picture of the key.
int TestKeyTest::shownFrame() const
{
    const auto *key = shown.find<QLabel>("labelKeymt");
    const QImage image = key->pixmap(Qt::ReturnByValue).toImage();
    int frame = 9;
    while (frame >= 0 &&
           image != look::picture(QStringLiteral(":/images/press/press0%1.png").arg(frame), key).toImage())
        --frame;
    return frame;
}

void TestKeyTest::depthShows_data()
{
    QTest::addColumn<int>("raw");
    QTest::addColumn<int>("frame");
    QTest::addColumn<double>("depth");
    QTest::newRow("at rest") << 0 << 9 << 0.0;
    QTest::newRow("half the way") << 360 << 4 << 0.5;
    QTest::newRow("beyond the bottom") << 0xFFFF << 0 << 0.999;
}

void TestKeyTest::depthShows()
{
    QFETCH(int, raw);
    QFETCH(double, depth);
    sample(raw);
    QCOMPARE(barEnd(), int((ruler->height() - 28) * depth));
    QTEST(shownFrame(), "frame");
}

void TestKeyTest::testRunsWhileItIsOn()
{
    shown.click("checkBoxKeytest0");
    QVERIFY(!shown.device.keyboard->keyTestRunning());
    sample(700);
    QCOMPARE(barEnd(), 0);
    QCOMPARE(shownFrame(), 9);

    shown.device.readDone.clear();
    shown.device.connection.DoReadAll();
    shown.click("checkBoxKeytest0"); // not sent before the end of the read, which shows another sub-page
    QVERIFY(shown.device.readDone.wait(20000));
    QTRY_VERIFY(shown.device.keyboard->keyTestRunning());
    shown.click("pushButtonSet4");
    sample(360);
    QCOMPARE(shownFrame(), 4);
}

void TestKeyTest::type(QEvent::Type type, quint16 scan, const char *text, bool repeat)
{
    QKeyEvent event(type, 0, Qt::NoModifier, nativeScan(scan), 0, 0, QString::fromUtf8(text), repeat);
    QCoreApplication::sendEvent(&shown.page, &event);
}

/// Names that stand in an area, in order.
QString TestKeyTest::names(const char *area) const
{
    QStringList list;
    const QLayout *layout = shown.find<QWidget>(area)->layout();
    for (int i = 0; i < layout->count(); ++i)
        list += qobject_cast<QLabel *>(layout->itemAt(i)->widget())->text();
    return list.join(u' ');
}

void TestKeyTest::keysAreNamed()
{
    const auto named = [this](quint16 scan, const char *text) {
        for (int turn = 0; turn < 2; ++turn) // off, which forgets what was seen, and on
            shown.click("checkBoxKeytest1");
        type(QEvent::KeyPress, scan, text);
        const QString name = seen();
        const bool same = held() == name;
        type(QEvent::KeyRelease, scan, text);
        return same && held().isEmpty() ? name : QStringLiteral("not the same");
    };
    QCOMPARE(named(KeyA, "a"), QStringLiteral("A"));
    QCOMPARE(named(0x3B, ""), QStringLiteral("F1"));
    QCOMPARE(named(0x39, " "), QStringLiteral("Space"));
    QCOMPARE(named(0x0E, "\b"), QStringLiteral("BackSpace"));
    QCOMPARE(named(0xE047, ""), QStringLiteral("Home"));
    QCOMPARE(named(0x7F, ""), QString()); // unknown
}

void TestKeyTest::heldAndSeenKeys()
{
    shown.click("checkBoxKeytest1");
    shown.click("checkBoxKeytest1");
    type(QEvent::KeyRelease, KeyA, "a"); // not known of
    type(QEvent::KeyPress, KeyA, "a");
    type(QEvent::KeyPress, KeyOne, "!");
    for (const QEvent::Type again : {QEvent::KeyRelease, QEvent::KeyPress})
        type(again, KeyOne, "!", true);
    QCOMPARE(held(), QStringLiteral("A !"));
    type(QEvent::KeyRelease, KeyOne, "1"); // Shift went up before it
    QCOMPARE(held(), QStringLiteral("A"));
    for (int i = 0; i < 30; ++i) {
        type(QEvent::KeyRelease, KeyA, "a");
        type(QEvent::KeyPress, KeyA, "a");
    }
    QCOMPARE(seen(), QStringLiteral("A !") + QStringLiteral(" A").repeated(30));
    const QWidget *last = shown.find<QGridLayout>("gridLayout_2")->itemAtPosition(3, 1)->widget();
    QTRY_COMPARE(last->visibleRegion().boundingRect(), last->rect()); // scrolled to

    shown.click("checkBoxKeytest1");
    QCOMPARE(seen(), QString());
    QCOMPARE(held(), QStringLiteral("A"));
    QWidget other; // in which the key is let go
    other.show();
    other.activateWindow();
    QTRY_COMPARE(held(), QString());
}

QTEST_MAIN(TestKeyTest)
#include "tst_keytest.moc"
