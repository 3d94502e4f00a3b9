#include "Desktop.h"
#include "SiblingOperations.h"
#include "StandIn.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr quint32 EmbeddedStyle = 0xD60A0000;
constexpr quint32 EmbeddedExtendedStyle = 0x00080000;

} // namespace

/// A real driver's window on a real desktop, from its start until it is asked to close.
class TestSiblingWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void foundByItsTitleUntilItCloses();
    void ownWindowIsPlacedAndHidden();
    void embedded();
    void goneWindowIsIgnored();

private:
    using Window = SiblingOperations::Window;
    Window open(const QString &title, bool hidden);

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<QSettings> settings;
    std::unique_ptr<SiblingOperations> operations;
    std::unique_ptr<StandIn> driver;
};

void TestSiblingWindows::init()
{
    folder = std::make_unique<QTemporaryDir>();
    settings =
        std::make_unique<QSettings>(folder->filePath(QStringLiteral("values.ini")), QSettings::IniFormat);
    operations = SiblingOperations::create(*settings);
}

void TestSiblingWindows::cleanup()
{
    driver.reset();
    operations.reset();
}

/// Starts a driver and waits for its window.
SiblingOperations::Window TestSiblingWindows::open(const QString &title, bool hidden)
{
    driver = std::make_unique<StandIn>(
        folder->filePath(QStringLiteral("driver folder")), QStringLiteral("Orbe-Test.exe"),
        QVariantMap{{QStringLiteral("title"), title}, {QStringLiteral("hidden"), hidden}});
    operations->startProgram(driver->path());
    Window window = 0;
    if (!QTest::qWaitFor([&] { return (window = operations->findWindow(title)) != 0; }))
        qWarning() << "No window of the title" << title;
    return window;
}

void TestSiblingWindows::foundByItsTitleUntilItCloses()
{
    const QString title = QStringLiteral("Orbe Cloud Driver");
    QCOMPARE(operations->findWindow(title), Window(0));
    const Window hidden = open(title, true);
    QVERIFY(!Desktop::isShown(hidden));
    QCOMPARE(operations->findWindow(QStringLiteral("Orbe")), Window(0));
    QCOMPARE(operations->findWindow(title.toUpper()), hidden);
    operations->postClose(hidden);
    QTRY_VERIFY(!operations->isRunning(driver->name()));
    QVERIFY(driver->report().contains(QStringLiteral("closed")));
    QTRY_COMPARE(operations->findWindow(title), Window(0));
}

void TestSiblingWindows::ownWindowIsPlacedAndHidden()
{
    const Window window = open(QStringLiteral("Orbe-Gaming-Bub"), false);
    operations->show(window);
    QTRY_VERIFY(Desktop::isShown(window));
    operations->hide(window);
    QTRY_VERIFY(!Desktop::isShown(window));
    operations->show(window);
    operations->bringToTop(window);
    QTRY_VERIFY(Desktop::isShown(window));
    operations->move(window, QRect(200, 150, 800, 500));
    QTRY_COMPARE(operations->rect(window).size(), QSize(800, 500));
    // A window manager may take the place for that of its frame.
    const QPoint place = operations->rect(window).topLeft();
    QVERIFY2((place - QPoint(200, 150)).manhattanLength() < 60,
             qPrintable(QStringLiteral("%1, %2").arg(place.x()).arg(place.y())));
    operations->setForeground(window);
    operations->redraw(window, 0x300);
    QVERIFY(Desktop::isShown(window));
}

void TestSiblingWindows::embedded()
{
    QWidget hub;
    hub.setWindowTitle(QStringLiteral("Orbe Dirver Hub"));
    hub.resize(1280, 900);
    QWidget frame(&hub);
    frame.setGeometry(40, 100, 1200, 700);
    const auto parent = Window(frame.winId());
    hub.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hub));

    const Window window = open(QStringLiteral("bymold"), false);
    operations->setStyles(window, EmbeddedStyle, EmbeddedExtendedStyle);
    operations->place(window, SiblingOperations::Order::Bottom, {},
                      SiblingOperations::NoSize | SiblingOperations::HideWindow);
    operations->hide(window);
    operations->setParent(window, parent);
    QTRY_COMPARE(Desktop::parentOf(window), parent);
    QVERIFY(!Desktop::isShown(window));

    const QSize size(1201, 701);
    operations->place(window, SiblingOperations::Order::Bottom, {{0, 0}, size},
                      SiblingOperations::ShowWindow);
    operations->shapeRoundBottom(window, size, 32, 32);
    QTRY_VERIFY(Desktop::isShown(window));
    QTRY_COMPARE(operations->rect(window), QRect(frame.mapToGlobal(QPoint()), size));
    QVERIFY(Desktop::covers(window, {0, 0}));
    QVERIFY(Desktop::covers(window, {1200, 20}));
    QVERIFY(Desktop::covers(window, {600, 699}));
    QVERIFY(!Desktop::covers(window, {0, 700}));
    QVERIFY(!Desktop::covers(window, {1200, 699}));
    QVERIFY(Desktop::covers(window, {8, 692}));

    operations->hide(window);
    QTRY_VERIFY(!Desktop::isShown(window));
    QCOMPARE(Desktop::parentOf(window), parent);
}

void TestSiblingWindows::goneWindowIsIgnored()
{
    const Window window = open(QStringLiteral("Orbe"), false);
    QWidget hub;
    hub.show();
    operations->endProcess(driver->name());
    QTRY_VERIFY(operations->rect(window).isNull());
    operations->hide(window);
    operations->setStyles(window, EmbeddedStyle, EmbeddedExtendedStyle);
    operations->setParent(window, Window(hub.winId()));
    operations->place(window, SiblingOperations::Order::Bottom, {0, 0, 10, 10},
                      SiblingOperations::ShowWindow);
    operations->shapeRoundBottom(window, {10, 10}, 32, 32);
    operations->bringToTop(window);
    operations->setForeground(window);
    operations->postClose(window);
    QVERIFY(operations->rect(window).isNull());
    QTRY_COMPARE(operations->findWindow(QStringLiteral("Orbe")), Window(0));
}

int main(int argc, char *argv[])
{
    const Desktop desktop;
    QApplication application(argc, argv);
    TestSiblingWindows test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_siblingwindows.moc"
