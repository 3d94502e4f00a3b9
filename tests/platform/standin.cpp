#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTimer>
#include <QWidget>

namespace {

constexpr const char *HandOverKeys[] = {"DeviceId", "DevicePath"};

/// The place of the shared values, which QSettings gives with a backslash before a key of the registry.
QString placeOf(const QSettings &orders)
{
    const QString place = orders.value(QStringLiteral("settings")).toString();
    return place.startsWith(QLatin1String("\\HKEY_")) ? place.mid(1) : place;
}

QSettings::Format formatOf(const QString &place)
{
    return place.startsWith(QLatin1String("HKEY_")) ? QSettings::NativeFormat : QSettings::IniFormat;
}

/// Plays a sibling driver. What it is to do stands in an INI file beside the program, of the program's name:
///   title        of its window
///   settings     the values shared with the hub: an INI file, or a key of the registry
///   report       file that gets a line for whatever happens
///   hidden       true: the window is made but not shown
///   handle       true: the window's handle goes to "OrbeWnd"
///   returnAfter  true: asks the hub back once a device was handed over
class StandInWindow : public QWidget
{
public:
    explicit StandInWindow(const QSettings &orders)
        : values(placeOf(orders), formatOf(placeOf(orders)))
        , reportFile(orders.value(QStringLiteral("report")).toString())
        , returnAfter(orders.value(QStringLiteral("returnAfter")).toBool())
    {
        setWindowTitle(orders.value(QStringLiteral("title")).toString());
        resize(600, 400);
        connect(&timer, &QTimer::timeout, this, &StandInWindow::watchValues);
        timer.start(50);
        const WId handle = winId(); // which makes the native window
        if (orders.value(QStringLiteral("handle")).toBool())
            values.setValue(QStringLiteral("OrbeWnd"), uint(handle));
        setVisible(!orders.value(QStringLiteral("hidden")).toBool());
        report(QStringLiteral("started"));
    }

protected:
    void closeEvent(QCloseEvent *) override
    {
        report(QStringLiteral("closed"));
        QCoreApplication::quit();
    }

private:
    void watchValues()
    {
        values.sync();
        for (const char *name : HandOverKeys) {
            const QString key = QLatin1String(name);
            const QVariant value = values.value(key);
            if (std::exchange(seen[key], value) == value)
                continue;
            report(key + QLatin1Char('=') + value.toString());
            if (returnAfter && !value.toString().isEmpty())
                values.setValue(QStringLiteral("OrbeReturn"), 1);
        }
    }

    void report(const QString &line)
    {
        if (!reportFile.isOpen() && !reportFile.open(QIODevice::WriteOnly | QIODevice::Append))
            return;
        reportFile.write(line.toUtf8() + '\n');
        reportFile.flush();
    }

    QSettings values;
    QFile reportFile;
    QTimer timer;
    QVariantMap seen; ///< the hand-over values as they were last
    const bool returnAfter;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    // A hidden window that is the only one doesn't end the program.
    QApplication::setQuitOnLastWindowClosed(false);
    QString orders = QFileInfo(QCoreApplication::applicationFilePath()).absoluteFilePath();
    if (orders.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive))
        orders.chop(4);
    StandInWindow window(QSettings(orders + QStringLiteral(".ini"), QSettings::IniFormat));
    return QApplication::exec();
}
