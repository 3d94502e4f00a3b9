#include "DialogDeviceConnect.h"
#include "Disk.h"
#include "HubSettings.h"
#include "IniFormat.h"
#include "UserWork.h"
#include "VirtualBus.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace userwork;
using virtualhid::VirtualBus;

namespace {

QString configFolder;             ///< of the settings that the hub shares with sibling drivers
QString deviceFolder;             ///< of device.ini
constexpr int SharedValues = 400; ///< of a sibling driver in the same file: makes it several pages long

void saveSettings(const QString &, int generation)
{
    QSettings &settings = platform::hubSettings(false);
    for (int i = 0; i < SharedValues; ++i)
        settings.setValue(QStringLiteral("value%1").arg(i), text(generation).repeated(10));
    settings.sync();
}

/// The values of a file as another program finds them; this one's QSettings remember what they couldn't
/// write.
QMap<QString, QString> valuesIn(const QString &path)
{
    const QTemporaryDir elsewhere;
    const QString copy = elsewhere.filePath(QStringLiteral("copy.ini"));
    QFile::copy(path, copy);
    const QSettings settings(copy, QSettings::IniFormat);
    QMap<QString, QString> values;
    for (const QString &key : settings.allKeys())
        values[key] = settings.value(key).toString();
    return values;
}

int loadSettings(const QString &folder)
{
    const QMap<QString, QString> values = valuesIn(folder + QStringLiteral("/Orbe.ini"));
    for (int generation = 1; generation <= 2; ++generation) {
        if (values.size() == SharedValues &&
            QSet(values.begin(), values.end()) == QSet{text(generation).repeated(10)})
            return generation;
    }
    return None;
}

/// The ids of the keyboard that was connected last.
void saveIds(const QString &, int generation)
{
    VirtualBus::instance().reset();
    const auto keyboard = VirtualBus::instance().plug(generation == 1 ? "wired-500" : "wired-300");
    DialogDeviceConnect connection;
    connection.DoConnectDevice(keyboard->model().vendorId, keyboard->model().productId, false, {},
                               QString::fromStdString(keyboard->path(sim::Channel::Command)));
    VirtualBus::instance().reset();
}

int loadIds(const QString &folder)
{
    const auto idsOf = [](const char *pid) {
        return QMap<QString, QString>{{QStringLiteral("lastVID"), QStringLiteral("3151")},
                                      {QStringLiteral("lastPID"), QLatin1String(pid)}};
    };
    const QMap<QString, QString> values = valuesIn(folder + QStringLiteral("/device.ini"));
    return values == idsOf("502F") ? 1 : values == idsOf("5030") ? 2 : None;
}

struct Content
{
    Kind kind;
    const QString *folder; ///< null: any
};

const Content Contents[] = {
    {Kinds[0], nullptr},
    {Kinds[1], nullptr},
    {{"shared settings", saveSettings, loadSettings, true}, &configFolder},
    {{"device.ini", saveIds, loadIds, true}, &deviceFolder},
};

} // namespace

/// Saving where there is no room: the old file or the new one is there, whole.
class TestFullDisk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atEveryFreeSpace_data();
    void atEveryFreeSpace();
    void readOnlyFolder_data() { atEveryFreeSpace_data(); }
    void readOnlyFolder();
    void settingsStayIni();

private:
    static QString folderOf(const Content &content)
    {
        return content.folder ? *content.folder : home->path();
    }

    static inline std::unique_ptr<QTemporaryDir> home = std::make_unique<QTemporaryDir>();
};

void TestFullDisk::atEveryFreeSpace_data()
{
    QTest::addColumn<int>("content");
    for (size_t i = 0; i < std::size(Contents); ++i)
        QTest::newRow(Contents[i].kind.name) << int(i);
}

void TestFullDisk::atEveryFreeSpace()
{
    QFETCH(int, content);
    const Kind &kind = Contents[content].kind;
    Disk disk(folderOf(Contents[content]));
    int kept = 0;
    int written = 0;
    for (qint64 pages = 0; written < 5; ++pages) {
        kind.save(disk.folder(), 1);
        QCOMPARE(kind.load(disk.folder()), 1);
        disk.fill(pages);
        kind.save(disk.folder(), 2);
        disk.release();
        const int found = kind.load(disk.folder());
        QVERIFY2(found != None, qPrintable(QStringLiteral("Lost with %1 pages free").arg(pages)));
        (found == 1 ? kept : written) += 1;
        QVERIFY(pages < 200);
    }
    qInfo("%s: the old file stays up to %d pages free; never lost", kind.name, kept);
    QVERIFY(kept > 0);
}

void TestFullDisk::readOnlyFolder()
{
    QFETCH(int, content);
    const Kind &kind = Contents[content].kind;
    Disk disk(folderOf(Contents[content]));
    kind.save(disk.folder(), 1);
    disk.protect();
    kind.save(disk.folder(), 2);
    disk.release();
    QCOMPARE(kind.load(disk.folder()), 1);
    kind.save(disk.folder(), 2);
    QCOMPARE(kind.load(disk.folder()), 2);
}

/// The settings' format is QSettings' own, both ways, for whoever else reads the files or wrote them.
void TestFullDisk::settingsStayIni()
{
    const QMap<QString, QString> values{
        {QStringLiteral("plain"), QStringLiteral("3151")},
        {QStringLiteral("Some group/odd=key %"), QStringLiteral("a;b, \"c\"\\d\ne ")},
        {QStringLiteral("Some group/language"), QString::fromUtf8("\u7b80\u4f53, \u4e2d\u6587")},
        {QStringLiteral("empty"), QString()},
    };
    for (const auto &[writer, reader] : {std::pair(platform::iniFormat(), QSettings::IniFormat),
                                         std::pair(QSettings::IniFormat, platform::iniFormat())}) {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("values.ini"));
        {
            QSettings written(path, writer);
            for (auto value = values.begin(); value != values.end(); ++value)
                written.setValue(value.key(), *value);
        }
        const QSettings read(path, reader);
        QCOMPARE(read.allKeys(), values.keys());
        for (auto value = values.begin(); value != values.end(); ++value)
            QCOMPARE(read.value(value.key()).toString(), *value);
    }
}

int main(int argc, char **argv)
{
    const bool isDisk = Disk::isolate();
    const QTemporaryDir config;
    configFolder = config.filePath(QStringLiteral("OrbeHub"));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(config.path()));
    const QApplication application(argc, argv);
    deviceFolder = QCoreApplication::applicationDirPath() + QStringLiteral("/config");
    qInfo("%s",
          isDisk ? "on a disk of its own" : "no disk can be mounted here: with limits on files instead");
    TestFullDisk test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_fulldisk.moc"
