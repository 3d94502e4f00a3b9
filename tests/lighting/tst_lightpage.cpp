#include "ConnectedKeyboard.h"
#include "FrameLight.h"
#include "KeyboardButton.h"
#include "KeyMatrix.h"
#include "ModuleKeyboard.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMessageBox>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>

using virtualhid::Fault;

namespace {

constexpr quint8 KeyQ = 20;
constexpr quint8 KeyW = 26;
constexpr quint8 KeySpace = 44;
const QColor FirstColour(0, 220, 0);

QString worksFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/work");
}

QString worksPath(const QString &suffix = {})
{
    return worksFolder() + QStringLiteral("/ledwork.json") + suffix;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeWorks(const QByteArray &content)
{
    QFile file(worksPath());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray jsonOf(const QList<LightWork> &works)
{
    QJsonArray array;
    for (const LightWork &work : works) {
        array.append(QJsonObject{{QStringLiteral("image"), QString::fromUtf8(work.image)},
                                 {QStringLiteral("name"), work.name},
                                 {QStringLiteral("data"), QString::fromUtf8(work.data)}});
    }
    return QJsonDocument(array).toJson();
}

/// The page as a user has it in hand.
struct Page : FrameLight
{
    template <typename Widget>
    Widget *tool(const char *name) const
    {
        return findChild<QStackedWidget *>()->currentWidget()->findChild<Widget *>(QLatin1String(name));
    }
    void press(const char *button) const { tool<QAbstractButton>(button)->click(); }
    void paint(quint8 code) const { keyboard()->keyButton(code)->click(); }
    QColor shown(quint8 code) const { return keyboard()->keyButton(code)->fillColor(); }
    ModuleKeyboard *keyboard() const { return findChild<ModuleKeyboard *>(); }
    QTableView *table() const { return tool<QTableView>("tableView"); }
    QString name() const { return tool<QLineEdit>("lineEditName")->text(); }
    void click(int row, int column) const { Q_EMIT table()->clicked(table()->model()->index(row, column)); }
    bool canUpdate() const { return !tool<QWidget>("pushButtonUpdate")->isHidden(); }
};

/// Presses a button of the next message box.
void answerWith(QMessageBox::StandardButton button)
{
    QTimer::singleShot(0, qApp, [button] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        QCOMPARE(box->text(), QStringLiteral("确认要删除此作品吗？"));
        box->button(button)->click();
    });
}

} // namespace

/// The light page on a virtual keyboard, and the file of its works.
class TestLightPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { shared.reset(); }
    void init();

    void aPaintingSurvivesEverything();
    void picturesThatLackPagesAreNotTaken();
    void worksAreUpdatedAndDeleted();
    void files_data();
    void files();
    void truncatedAnywhere();

private:
    sim::Colour held(int slot, quint8 code) const
    {
        return shared->keyboard->state().pictures.colour(slot, keys::PositionOfCode(code));
    }

    std::unique_ptr<ConnectedKeyboard> shared;
};

void TestLightPage::initTestCase()
{
    shared = std::make_unique<ConnectedKeyboard>("wired-2ff");
    QVERIFY(shared->readAll());
}

void TestLightPage::init()
{
    QDir(worksFolder()).removeRecursively();
    QVERIFY(QDir().mkpath(worksFolder()));
    shared->keyboard->edit([](sim::KeyboardState &state) { state.pictures = {}; });
    shared->settle();
}

void TestLightPage::aPaintingSurvivesEverything()
{
    QByteArray written;
    {
        const Page page;
        QCOMPARE(page.shown(KeySpace), QColor(Qt::black));
        page.paint(KeyQ);
        QCOMPARE(page.shown(KeyQ), FirstColour);
        page.press("checkBoxRam");
        page.paint(KeyW);
        const QColor once = page.shown(KeyW);
        page.paint(KeyW);
        const QColor twice = page.shown(KeyW);
        QVERIFY(once != twice);

        page.press("radioButtonW2");
        shared->settle();
        QCOMPARE(held(2, KeyQ), (sim::Colour{0, 220, 0}));
        QCOMPARE(held(2, KeyW),
                 (sim::Colour{sim::Byte(twice.red()), sim::Byte(twice.green()), sim::Byte(twice.blue())}));
        QCOMPARE(held(2, KeySpace), sim::Colour{});
        QCOMPARE(shared->keyboard->light().keys.option, sim::Byte(0x20));
        written = bytesOf(shared->keyboard->state().pictures.bytes(2));

        page.press("pushButtonReset");
        QCOMPARE(page.shown(KeyQ), QColor(Qt::black));
        page.press("radioButtonR2");
        shared->settle();
        QCOMPARE(page.shown(KeyQ), FirstColour);
        QCOMPARE(page.shown(KeyW), twice);
        page.tool<QLineEdit>("lineEditName")->setText(QStringLiteral("  夜 \"x\" "));
        page.press("pushButtonSave");
    }
    const Page page;
    QCOMPARE(page.table()->model()->rowCount(), 1);
    page.click(0, 1);
    QCOMPARE(page.name(), QStringLiteral("夜 \"x\""));
    page.press("radioButtonW4");
    shared->settle();
    QCOMPARE(bytesOf(shared->keyboard->state().pictures.bytes(4)), written);
    const QByteArray base64 = page.table()->model()->index(0, 0).data(257).toByteArray();
    const QImage preview = QImage::fromData(QByteArray::fromBase64(base64), "PNG");
    QCOMPARE(preview.size(), page.keyboard()->size());
    const QColor atQ =
        preview.pixelColor(page.keyboard()->keyButton(KeyQ)->geometry().topLeft() + QPoint(8, 8));
    QVERIFY2(atQ.green() > 200 && atQ.red() < 120, qPrintable(atQ.name()));
}

void TestLightPage::picturesThatLackPagesAreNotTaken()
{
    const Page page;
    page.paint(KeyQ);
    shared->keyboard->clearLog();
    shared->keyboard->faultAtFrame(2, Fault::lost());
    page.press("radioButtonR0");
    shared->settle();
    page.paint(KeyW);
    page.press("radioButtonW1"); // what waited goes out first
    shared->settle();
    QCOMPARE(page.shown(KeyQ), FirstColour);
    QCOMPARE(held(1, KeyW), (sim::Colour{0, 220, 0}));

    shared->keyboard->clearLog();
    shared->keyboard->faultAtFrame(5, Fault::shortReply(1));
    page.press("radioButtonR0");
    shared->settle();
    QCOMPARE(page.shown(KeyQ), QColor(Qt::black));
    page.paint(KeySpace);
    page.press("radioButtonW1");
    shared->settle();
    QCOMPARE(held(1, KeySpace), (sim::Colour{0, 220, 0}));
}

void TestLightPage::worksAreUpdatedAndDeleted()
{
    const Page page;
    page.press("pushButtonUpdate");
    QVERIFY(!QFile::exists(worksPath()));
    page.press("pushButtonSave");
    page.paint(KeyQ);
    page.tool<QLineEdit>("lineEditName")->clear();
    page.press("pushButtonSave");
    QVERIFY(!page.canUpdate());
    page.click(0, 0);
    QVERIFY(page.canUpdate());
    QCOMPARE(page.shown(KeyQ), QColor(Qt::black));
    page.paint(KeySpace);
    page.press("pushButtonUpdate");

    answerWith(QMessageBox::No);
    page.click(1, 2);
    QCOMPARE(page.shown(KeyQ), QColor(Qt::black));
    answerWith(QMessageBox::Yes);
    page.click(1, 2);
    QVERIFY(!page.canUpdate());
    QCOMPARE(page.name(), QStringLiteral("我的作品1"));
    const QJsonArray left = QJsonDocument::fromJson(contentOf(worksPath())).array();
    QCOMPARE(left.size(), 1);
    const QByteArray map = QByteArray::fromHex(left[0][u"data"].toString().toLatin1());
    QCOMPARE(map.mid(keys::PositionOfCode(KeySpace) * 3, 3), QByteArray("\0\xDC\0", 3));
    QCOMPARE(map.size(), 500);
    answerWith(QMessageBox::Yes);
    page.click(0, 2);
    QCOMPARE(page.name(), QStringLiteral("我的作品0"));
    QCOMPARE(contentOf(worksPath()), QByteArray("[\n]\n"));
}

void TestLightPage::files_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("rows");
    QTest::addColumn<bool>("aside");
    const LightWork good{"aaaa", QStringLiteral("n"), "00dc00"};
    QTest::newRow("not even JSON") << QByteArray("\xff\x00\xfe", 3) << 0 << true;
    QTest::newRow("among works something else")
        << QByteArray("[7, null, {\"image\": 1, \"name\": \"x\"}]") << 1 << true;
    QTest::newRow("odd hexadecimal, broken picture")
        << jsonOf({good, {"!?", {}, "0g"}, {"AAAA", {}, "abc"}, {{}, {}, QByteArray(9999, 'f')}}) << 4
        << false;
    QTest::newRow("texts to be escaped")
        << jsonOf({{"\"\\", QStringLiteral("\n\t\x01 \u4f5c\u54c1 \U0001F308"), "\xc3\xa4"}}) << 1 << false;
}

void TestLightPage::files()
{
    QFETCH(QByteArray, content);
    QFETCH(int, rows);
    QFETCH(bool, aside);
    writeWorks(content);
    LightWorksFile file(worksFolder());
    const QList<LightWork> works = file.load();
    QCOMPARE(works.size(), rows);
    QCOMPARE(LightWorksFile::toJson(works), jsonOf(works));

    const Page loaded;
    for (int row = 0; row < rows; ++row) {
        loaded.click(row, 1);
        loaded.paint(KeyQ);
    }
    loaded.press("pushButtonSave");
    QCOMPARE(contentOf(worksPath(QStringLiteral(".broken1"))), aside ? content : QByteArray());
    const QList<LightWork> saved = file.load();
    QCOMPARE(saved.size(), rows + 1);
    QCOMPARE(saved.first(rows), works);
}

void TestLightPage::truncatedAnywhere()
{
    const QList<LightWork> works{{"iVBORw==", QStringLiteral("一"), "00ff"}, {"", QStringLiteral("b"), ""}};
    const QByteArray whole = LightWorksFile::toJson(works);
    LightWorksFile file(worksFolder());
    for (qsizetype length = 0; length < whole.trimmed().size(); ++length) {
        writeWorks(whole.first(length));
        QVERIFY(file.load().isEmpty());
        QVERIFY(file.save(works));
        QCOMPARE(contentOf(worksPath(QStringLiteral(".broken1"))), whole.first(length));
        QVERIFY(QFile::remove(worksPath(QStringLiteral(".broken1"))));
        QCOMPARE(contentOf(worksPath()), whole);
    }
    QVERIFY(file.save(QList<LightWork>(10000, works[0])));
    QCOMPARE(Page().table()->model()->rowCount(), 10000);
}

QTEST_MAIN(TestLightPage)
#include "tst_lightpage.moc"
