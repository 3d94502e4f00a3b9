#include "ConnectedKeyboard.h"
#include "DeviceOptionsPanel.h"
#include "ModuleScrollValue.h"

#include <memory>
#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QWheelEvent>

namespace {

constexpr auto Factory = "3 2 300 600 1800 3600"; ///< rate, debounce, and the sleep times in seconds

void turn(QWidget *widget, const QPoint &angle)
{
    QWheelEvent event({5, 5}, {5, 5}, {}, angle, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

/// What the panel shows of a keyboard, and what its controls change on it.
class TestDeviceOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void showsTheKeyboard();
    void changesReachTheKeyboard_data();
    void changesReachTheKeyboard();
    void whatWritesNothing();
    void aConnectionThatIsGoneIsHarmless();

private:
    /// Puts options onto the keyboard, and so into what the connection knows of it.
    void give(const QString &options);
    QString held() const;
    /// Turns, types into or drags a control: "up", "down" or "aside", or a text.
    void use(const QString &control, const QString &input) const;

    std::unique_ptr<ConnectedKeyboard> link;
    std::unique_ptr<DeviceOptionsPanel> panel;
};

void TestDeviceOptions::initTestCase()
{
    link = std::make_unique<ConnectedKeyboard>("wired-500");
    QVERIFY(link->readAll());
}

void TestDeviceOptions::init()
{
    give(QLatin1String(Factory));
    panel = std::make_unique<DeviceOptionsPanel>();
    panel->refresh();
}

void TestDeviceOptions::give(const QString &options)
{
    const QStringList parts = options.split(QLatin1Char(' '));
    link->keyboard->clearLog();
    link->connection.DoSetReportRate(quint8(parts.at(0).toInt()));
    link->connection.DoSetDebounce(quint8(parts.at(1).toInt()));
    for (int slot = 0; slot < 4; ++slot)
        link->connection.DoSetSleepTime(parts.at(2 + slot).toInt() / 60, slot);
    QVERIFY(link->waitForFrames(6));
    link->keyboard->clearLog();
}

QString TestDeviceOptions::held() const
{
    link->settle();
    const auto settings = link->keyboard->state().settings;
    QStringList parts{QString::number(settings.reportRate), QString::number(settings.debounce)};
    for (const int seconds : settings.sleepTimes)
        parts.append(QString::number(seconds));
    return parts.join(QLatin1Char(' '));
}

void TestDeviceOptions::use(const QString &control, const QString &input) const
{
    auto *widget = panel->findChild<QWidget *>(control);
    QVERIFY(widget);
    bool isNumber = false;
    const int number = input.toInt(&isNumber);
    if (input == QLatin1String("up")) {
        turn(widget, {0, 120});
    } else if (input == QLatin1String("down")) {
        turn(widget, {0, -120});
    } else if (input == QLatin1String("aside")) {
        turn(widget, {120, 0});
    } else if (auto *slider = qobject_cast<QSlider *>(widget); slider && isNumber) {
        slider->setValue(number);
    } else {
        qobject_cast<QLineEdit *>(widget)->setText(input);
    }
}

void TestDeviceOptions::showsTheKeyboard()
{
    // Three wheels, three edits with their sliders.
    const auto shown = [this](const char *options) {
        give(QLatin1String(options));
        panel->refresh();
        QStringList texts;
        for (const auto *wheel : panel->findChildren<ModuleScrollValue *>())
            texts.append(wheel->currentText());
        const QList<QSlider *> sliders = panel->findChildren<QSlider *>();
        for (int i = 0; i < 3; ++i) {
            const auto *edit = panel->findChild<QLineEdit *>(QStringLiteral("lineEditV%1").arg(i + 1));
            texts.append(QStringLiteral("%1 at %2").arg(edit->text()).arg(sliders.at(i)->value()));
        }
        return texts.join(QLatin1Char('|'));
    };
    // The wheels take the minutes for their index.
    QCOMPARE(shown("6 10 300 1800 1800 3600"),
             QStringLiteral("125 hz|10 min|45 min|60 at 60|30 at 30|10 at 10"));
    QCOMPARE(shown("9 200 0 0 65100 65100"), // beyond every range
             QStringLiteral("2000 hz|0 min|0 min|1085 at 1080|1085 at 1080|200 at 10"));
    link->settle();
    QCOMPARE(link->keyboard->frameCount(), size_t(0));
}

void TestDeviceOptions::changesReachTheKeyboard_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QStringList>("inputs");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *control, const char *inputs, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(control)
                            << QString::fromLatin1(inputs).split(QLatin1Char(' '))
                            << QString::fromLatin1(expected);
    };
    row("rate", "frameSV1", "down", "4 2 300 600 1800 3600");
    // 10 minutes stand on index 10, which is 300; 5 minutes on index 5, which is 45.
    row("2.4G light", "frameSV2", "up", "3 2 300 14400 1800 3600");
    row("2.4G sleep, every value of a drag", "horizontalSlider24Deep", "70 80 90", "3 2 300 600 1800 5400");
    row("Bluetooth sleep, typed", "lineEditV2", "3 31", "3 2 300 600 1860 3600");
    row("beyond 16 bits of seconds", "lineEditV1", "1100", "3 2 300 600 1800 464");
    row("turned aside, which counts as down", "lineEditV3", "aside", "3 1 300 600 1800 3600");
    row("turned below zero", "lineEditV3", "down down down", "3 255 300 600 1800 3600");
}

void TestDeviceOptions::changesReachTheKeyboard()
{
    QFETCH(QString, control);
    QFETCH(QStringList, inputs);
    QFETCH(QString, expected);
    for (const QString &input : inputs)
        use(control, input);
    QCOMPARE(held(), expected);
    QCOMPARE(link->keyboard->frameCount(), size_t(inputs.size()));
}

void TestDeviceOptions::whatWritesNothing()
{
    auto *edit = panel->findChild<QLineEdit *>(QStringLiteral("lineEditV1"));
    for (const char *text : {"", "-", "12x", "1.5"})
        edit->setText(QString::fromLatin1(text));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(edit->text(), QStringLiteral("60"));

    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(panel.get(), &language);

    panel->setRefreshing(true);
    use(QStringLiteral("lineEditV1"), QStringLiteral("77"));
    use(QStringLiteral("lineEditV2"), QStringLiteral("up"));
    use(QStringLiteral("horizontalSliderDebounce"), QStringLiteral("7"));
    QCOMPARE(held(), QLatin1String(Factory));
    QCOMPARE(link->keyboard->frameCount(), size_t(0));
}

void TestDeviceOptions::aConnectionThatIsGoneIsHarmless()
{
    link.reset();
    for (const char *control : {"frameSV1", "frameSV2", "frameSV3", "lineEditV1", "lineEditV2", "lineEditV3"})
        use(QLatin1String(control), QStringLiteral("down"));
    panel->refresh();
    auto *edit = panel->findChild<QLineEdit *>(QStringLiteral("lineEditV3"));
    QCOMPARE(edit->text(), QStringLiteral("1"));
    edit->clear();
    QTest::keyClick(edit, Qt::Key_Return);
}

QTEST_MAIN(TestDeviceOptions)
#include "tst_deviceoptions.moc"
