#include "AppStart.h"
#include "demo/DemoDesk.h"
#include "demo/DemoHands.h"
#include "demo/HubWindow.h"
#include "demo/PageSights.h"
#include "DialogDeviceConnect.h"
#include "FrameDeviceShow.h"
#include "Languages.h"
#include "ModuleKeyboard.h"
#include "ModuleLangMenu.h"
#include "NoticeBar.h"
#include "PageChecks.h"
#include "USBNotifier.h"

#include <QAbstractButton>
#include <QDir>
#include <QEventLoop>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

constexpr auto Turn = 5ms;
constexpr auto DialogTurn = 60ms; ///< a dialog stands by then
constexpr auto Rest = 250ms;
constexpr int NativePage = 2;

/// What offends and stays, since it is laid down what the program shows there.
struct Exemption
{
    const char *fault; ///< a part of the line that tells of it
    const char *reason;
};

constexpr std::array Exemptions{
    Exemption{"is 40x20: frameRight/frameRTSetting/checkBoxRTMode", "the ruler's switch has this size"},
    Exemption{"is 20x48: frameT/frameKeyboard/pushButton_Hid23",
              "the two halves of the knob are as wide as that"},
    Exemption{"is 21x21: tab21/frameDKS", "the points of a dynamic keystroke have this size"},
    Exemption{"is out of Tab's reach: frameB/frameMode/pushButtonSet", "Ctrl and a digit press these"},
    Exemption{"3.77:1, #ffff0000 on #faf7ff:  (QLabel)", "a key's action is offered in red"},
    Exemption{"on #fbfbfb: frameTop/frameKeyboard/pushButton_Hid", "a key has the colour of its switch type"},
    Exemption{"#ffa0a0a4 on #ffffff: page4/cardTravelTest/labelPress", "the ruler's numbers are gray"},
    Exemption{"macros-recording: is out of Tab's reach", "Tab is recorded"},
};

bool isExempt(const QString &fault)
{
    return std::any_of(Exemptions.begin(), Exemptions.end(),
                       [&](const Exemption &known) { return fault.contains(QLatin1String(known.fault)); });
}

} // namespace

/// Goes to every page, tab, picker and dialog of the running program and looks at all that shows there.
class TestEveryPage : public QObject
{
    Q_OBJECT

public:
    TestEveryPage(DemoDesk *demoDesk)
        : desk(demoDesk)
    {
    }

private Q_SLOTS:
    void initTestCase();
    void handsAndEyes();
    void keysLead();
    void wordsFit_data();
    void wordsFit();

private:
    using Check = QStringList (*)(QWidget *);

    void walk(const QList<Check> &checks);
    void look(const QString &sight);
    void step();

    DemoDesk *desk;
    QList<Check> checks;
    size_t sight = 0;
    QStringList way;
    QStringList faults;
    QEventLoop loop;
};

void TestEveryPage::initTestCase()
{
    QWidget *hub = hubWindow();
    hub->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(hub));
    QTRY_VERIFY(FrameDeviceShow::acquire(0, nullptr) && FrameDeviceShow::acquire(0, nullptr)->isVisible());
}

void TestEveryPage::walk(const QList<Check> &wanted)
{
    checks = wanted;
    faults.clear();
    sight = 0;
    auto *pages = hubWindow()->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    if (pages->currentIndex() != NativePage) {
        look(QStringLiteral("cards"));
        QTest::mouseClick(FrameDeviceShow::acquire(0, nullptr), Qt::LeftButton);
        QTRY_COMPARE(pages->currentIndex(), NativePage);
        QTRY_VERIFY(DialogDeviceConnect::instance()->isReadingAll());
        QTRY_VERIFY_WITH_TIMEOUT(!DialogDeviceConnect::instance()->isReadingAll(), 15000);
    }
    way = QString::fromLatin1(PageSights[0].way).split(u' ');
    QTimer::singleShot(0, this, &TestEveryPage::step);
    loop.exec();
    faults.removeDuplicates();
    for (const QString &fault : std::as_const(faults))
        qInfo().noquote() << fault;
    QCOMPARE(faults.size(), 0);
}

// One word in each turn of the event loop. A word that opens a dialog returns when the dialog is left, and
// the walk goes on meanwhile.
void TestEveryPage::step()
{
    if (DialogDeviceConnect::instance()->isReadingAll()) {
        QTimer::singleShot(Turn, this, &TestEveryPage::step);
        return;
    }
    if (way.isEmpty()) {
        // Without a window manager a window that goes leaves no other one active.
        if (!QApplication::activeWindow()) {
            QWidget *dialog = QApplication::activeModalWidget();
            (dialog ? dialog : hubWindow())->activateWindow();
            QCoreApplication::processEvents();
        }
        look(QLatin1String(PageSights[sight].picture));
        if (++sight == PageSights.size()) {
            loop.quit();
            return;
        }
        way = QString::fromLatin1(PageSights[sight].way).split(u' ');
    }
    const QString word = way.takeFirst();
    const bool opens = word.startsWith(u'!');
    QTimer::singleShot(opens                        ? DialogTurn
                       : word == QLatin1String(".") ? Rest
                                                    : Turn,
                       this, &TestEveryPage::step);
    if (word != QLatin1String(".") && !demohands::carryOut(opens ? word.mid(1) : word, *desk))
        faults << QStringLiteral("%1: nothing is %2").arg(QLatin1String(PageSights[sight].picture), word);
}

void TestEveryPage::look(const QString &name)
{
    for (NoticeBar *passing : hubWindow()->findChildren<NoticeBar *>())
        passing->hide();
    const QWidget *dialog = QApplication::activeModalWidget();
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (!window->isVisible() || window == desk || window == desk->board() ||
            (window == hubWindow() && dialog))
            continue;
        for (const Check check : std::as_const(checks)) {
            for (const QString &fault : check(window)) {
                const QString line = name + QStringLiteral(": ") + fault;
                if (!isExempt(line))
                    faults << line;
            }
        }
    }
}

void TestEveryPage::handsAndEyes()
{
    using namespace pagechecks;
    walk({nameless, tooSmall, unexplained, wrongCursor, pale, outOfReach});
}

// What Tab doesn't come by: the language menu, and a choice of keys.
void TestEveryPage::keysLead()
{
    auto *menu = hubWindow()->findChild<ModuleLangMenu *>();
    const QSignalSpy chosen(menu, &ModuleLangMenu::onLangChanged);
    hubWindow()->findChild<QAbstractButton *>(QStringLiteral("pushButtonLang"))->click();
    for (const int key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Return})
        QTest::keyClick(menu, Qt::Key(key));
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.at(0).at(0).toInt(), 1);
    QVERIFY(menu->isHidden());
    menu->selectLanguage(0);

    ModuleKeyboard keyboard;
    keyboard.enterSelectMode();
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(&keyboard, Qt::Key_Right, Qt::ShiftModifier);
    QByteArray codes;
    QCOMPARE(keyboard.selectedCodes(codes), 3);
}

void TestEveryPage::wordsFit_data()
{
    QTest::addColumn<int>("language");
    for (size_t i = 0; i < Languages.size(); ++i)
        QTest::newRow(Languages[i].locale) << int(i);
}

void TestEveryPage::wordsFit()
{
    QFETCH(int, language);
    hubWindow()->findChild<ModuleLangMenu *>()->selectLanguage(language);
    QCoreApplication::processEvents(); // the layouts follow
    walk({pagechecks::clipped});
}

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    for (const char *place : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(place, home.path().toLocal8Bit());
    qputenv("LANGUAGE", "zh_CN");
    AppStart start(argc, argv);
    for (const char *left : {"/macro", "/work"}) // by the run before
        QDir(QCoreApplication::applicationDirPath() + QLatin1String(left)).removeRecursively();
    QDir().mkpath(QCoreApplication::applicationDirPath() + QStringLiteral("/config"));
    for (const QString &file : QDir(QStringLiteral(ORBE_DATA "/config")).entryList(QDir::Files)) {
        const QString copy = QCoreApplication::applicationDirPath() + QStringLiteral("/config/") + file;
        QFile::remove(copy);
        QFile::copy(QStringLiteral(ORBE_DATA "/config/") + file, copy);
    }
    virtualhid::VirtualBus::instance().setHotPlugObserver([] { USBNotifier::report(); });
    DemoDesk desk({QStringLiteral("wired-2ff")});
    TestEveryPage test(&desk);
    QTimer::singleShot(0, &test, [&] { QCoreApplication::exit(QTest::qExec(&test, argc, argv)); });
    return start.run();
}

#include "tst_everypage.moc"
