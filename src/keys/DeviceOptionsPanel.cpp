#include "DeviceOptionsPanel.h"

#include "DialogDeviceConnect.h"
#include "Look.h"
#include "ui_DeviceOptionsPanel.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace {

constexpr int SecondsPerMinute = 60;

/// In the order of the wheel; the place is the keyboard's code for the rate.
constexpr std::array ReportRates{8000, 4000, 2000, 1000, 500, 250, 125};

constexpr std::array SleepMinutes{0, 5, 10, 15, 30, 45, 60, 120, 180, 240, 300, 600, 900, 1080};

/// The keyboard's sleep times: until the light goes out and until deep sleep, for each of the two links.
enum SleepSlot { BluetoothLight, WirelessLight, BluetoothDeep, WirelessDeep };

enum RowNumber : size_t { WirelessSleepRow, BluetoothSleepRow, DebounceRow };

const QString PanelStyle = look::sheet(QStringLiteral(
    "#frameOption1, #frameOption2, #frameOption3 { background-color: @panel; border-radius: 16px; }"
    "QLabel { color: @text; font-size: @groupTitle; font-weight: 600; background: transparent; }"
    "#labelUnit1, #labelUnit2 { color: @secondary; font-size: @body; font-weight: 400; }"));

QStringList rateTexts()
{
    QStringList texts;
    for (int rate : ReportRates)
        texts.append(QStringLiteral("%1 hz").arg(rate));
    return texts;
}

/// What the connection knows of the number in a row.
int knownValue(const DialogDeviceConnect &connection, size_t row)
{
    std::array<quint16, 4> seconds{};
    connection.GetSleepTimes(seconds);
    switch (row) {
    case WirelessSleepRow:
        return seconds[WirelessDeep] / SecondsPerMinute;
    case BluetoothSleepRow:
        return seconds[BluetoothDeep] / SecondsPerMinute;
    default:
        return connection.GetDebounce();
    }
}

void write(size_t row, int value)
{
    DialogDeviceConnect *connection = DialogDeviceConnect::instance();
    if (!connection)
        return;
    switch (row) {
    case WirelessSleepRow:
        connection->DoSetSleepTime(value, WirelessDeep);
        break;
    case BluetoothSleepRow:
        connection->DoSetSleepTime(value, BluetoothDeep);
        break;
    default:
        connection->DoSetDebounce(quint8(value));
    }
}

} // namespace

DeviceOptionsPanel::DeviceOptionsPanel(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::DeviceOptionsPanel>())
{
    ui->setupUi(this);
    look::setStyleOnce(this, PanelStyle);
    rows = {Row{ui->lineEditV1, ui->horizontalSlider24Deep}, Row{ui->lineEditV2, ui->horizontalSliderBTDeep},
            Row{ui->lineEditV3, ui->horizontalSliderDebounce}};
    fillWheels();
    nameControls();
    connectWheels();
    for (size_t row = 0; row < rows.size(); ++row)
        connectRow(row);
}

DeviceOptionsPanel::~DeviceOptionsPanel() = default;

/// Gives the wheels their texts and leaves them at the index at which they stand.
void DeviceOptionsPanel::fillWheels()
{
    QStringList times;
    for (int minutes : SleepMinutes)
        times.append(tr("%1 min").arg(minutes));
    const QStringList rates = rateTexts();
    for (ModuleScrollValue *wheel : {ui->frameSV1, ui->frameSV2, ui->frameSV3}) {
        const QSignalBlocker quiet(wheel); // a new list signals its start, which nobody chose
        const int index = qMax(0, wheel->currentIndex());
        wheel->setValues(wheel == ui->frameSV1 ? rates : times);
        wheel->setIndex(index);
    }
}

void DeviceOptionsPanel::connectWheels()
{
    connect(ui->frameSV1, &ModuleScrollValue::onIndexChanged, this, [](int index) {
        if (DialogDeviceConnect *connection = DialogDeviceConnect::instance())
            connection->DoSetReportRate(quint8(index));
    });
    const auto writeLightTime = [this](ModuleScrollValue *wheel, SleepSlot slot) {
        connect(wheel, &ModuleScrollValue::onIndexChanged, this, [slot](int index) {
            if (DialogDeviceConnect *connection = DialogDeviceConnect::instance())
                connection->DoSetSleepTime(SleepMinutes.at(size_t(index)), slot);
        });
    };
    writeLightTime(ui->frameSV2, WirelessLight);
    writeLightTime(ui->frameSV3, BluetoothLight);
}

void DeviceOptionsPanel::connectRow(size_t row)
{
    QLineEdit *edit = rows.at(row).edit;
    edit->installEventFilter(this);
    connect(rows.at(row).slider, &QSlider::valueChanged, edit,
            [edit](int value) { edit->setText(QString::number(value)); });
    connect(edit, &QLineEdit::textChanged, this, [this, row](const QString &text) { takeText(row, text); });
    connect(edit, &QLineEdit::editingFinished, this, [row, edit] {
        bool isNumber = false;
        edit->text().toInt(&isNumber);
        const DialogDeviceConnect *connection = DialogDeviceConnect::instance();
        if (!isNumber && connection) {
            const QSignalBlocker quiet(edit); // shown again, not written again
            edit->setText(QString::number(knownValue(*connection, row)));
        }
    });
}

/// The slider follows within its limits. What is written is what the text says; a text that isn't a number,
/// such as one half deleted, says nothing.
void DeviceOptionsPanel::takeText(size_t row, const QString &text)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    if (!isNumber)
        return;
    {
        const QSignalBlocker quiet(rows.at(row).slider); // its limit doesn't come back into the text
        rows.at(row).slider->setValue(value);
    }
    if (!refreshing)
        write(row, value);
}

void DeviceOptionsPanel::refresh()
{
    const DialogDeviceConnect *connection = DialogDeviceConnect::instance();
    if (!connection)
        return;
    const QScopedValueRollback<bool> hold(refreshing, true);
    std::array<quint16, 4> seconds{};
    connection->GetSleepTimes(seconds);
    ui->frameSV1->setIndex(connection->GetReportRate());
    // The minutes themselves are the index, and the wheel wraps them: they are not looked up in its list.
    ui->frameSV2->setIndex(seconds[WirelessLight] / SecondsPerMinute);
    ui->frameSV3->setIndex(seconds[BluetoothLight] / SecondsPerMinute);
    for (size_t row = 0; row < rows.size(); ++row)
        rows.at(row).edit->setText(QString::number(knownValue(*connection, row)));
}

void DeviceOptionsPanel::setRefreshing(bool on)
{
    refreshing = on;
}

bool DeviceOptionsPanel::eventFilter(QObject *watched, QEvent *event)
{
    auto *edit = qobject_cast<QLineEdit *>(watched);
    if (edit && event->type() == QEvent::Wheel && edit->isEnabled()) {
        const int step = static_cast<QWheelEvent *>(event)->angleDelta().y() >= 1 ? 1 : -1;
        edit->setText(QString::number(edit->text().toInt() + step)); // its length keeps this within an int
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

void DeviceOptionsPanel::nameControls()
{
    ui->frameSV1->setAccessibleName(ui->labelTitleV1->text());
    ui->frameSV2->setAccessibleName(ui->labelTitleV2->text());
    ui->frameSV3->setAccessibleName(ui->labelTitleV3->text());
    const std::array titles{ui->labelRow1, ui->labelRow2, ui->labelRow3};
    for (size_t row = 0; row < rows.size(); ++row) {
        rows.at(row).edit->setAccessibleName(titles.at(row)->text());
        rows.at(row).slider->setAccessibleName(titles.at(row)->text());
    }
}

void DeviceOptionsPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        fillWheels();
        nameControls();
    }
    QFrame::changeEvent(event);
}
