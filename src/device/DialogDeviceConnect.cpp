#include "DialogDeviceConnect.h"

#include "CommandCatalogue.h"
#include "CommandRows.h"
#include "ConsoleLog.h"
#include "ConsoleTable.h"
#include "DeviceLog.h"
#include "Framing.h"
#include "IniFormat.h"
#include "ReadSequence.h"
#include "ui_DialogDeviceConnect.h"
#include "WholeFile.h"

#include <algorithm>
#include <QEvent>
#include <QSettings>
#include <QWindow>

using namespace std::chrono_literals;

namespace {

constexpr auto InputPollPeriod = 20ms;
constexpr auto HotplugQuiet = 800ms;
constexpr auto ReadDoneDelay = 50ms;

constexpr int MaxCommandLength = 64;

DialogDeviceConnect *theInstance = nullptr;

CommandPump::Kick kick(bool immediate)
{
    return immediate ? CommandPump::Kick::Immediate : CommandPump::Kick::Deferred;
}

} // namespace

DialogDeviceConnect::DialogDeviceConnect(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::DialogDeviceConnect>())
    , settings(new QSettings(platform::workFolder(QStringLiteral("config")) + QStringLiteral("/device.ini"),
                             platform::iniFormat(), this))
{
    theInstance = this;
    ui->setupUi(this);
    rows = new CommandRows(this);
    table = new ConsoleTable(ui->tableView, rows, this);
    log = new ConsoleLog(ui->plainTextEdit, this);
    ui->lineEditVID->setText(settings->value(QStringLiteral("lastVID"), QStringLiteral("3151")).toString());
    ui->lineEditPID->setText(settings->value(QStringLiteral("lastPID"), QStringLiteral("502F")).toString());
    connectControls();
    startTimers();
}

DialogDeviceConnect::~DialogDeviceConnect()
{
    pump.setLink(nullptr, false);
    theInstance = nullptr;
}

DialogDeviceConnect *DialogDeviceConnect::instance()
{
    return theInstance;
}

DialogDeviceConnect::WriteGroup::WriteGroup(DialogDeviceConnect &connection)
    : pump(&connection.pump)
{
    pump->beginGroup();
}

DialogDeviceConnect::WriteGroup::~WriteGroup()
{
    if (pump)
        pump->endGroup();
}

void DialogDeviceConnect::connectControls()
{
    connect(table, &ConsoleTable::rowChosen, this, &DialogDeviceConnect::BuildRowCommand);
    connect(&pump, &CommandPump::replied, this, &DialogDeviceConnect::handleReply);
    connect(&pump, &CommandPump::drained, this, &DialogDeviceConnect::endReadSequence);
    connect(ui->pushButtonConnect, &QPushButton::clicked, this, &DialogDeviceConnect::connectStep);
    connect(ui->pushButtonRefresh, &QPushButton::clicked, this, &DialogDeviceConnect::refreshStep);
    connect(ui->pushButtonRead, &QPushButton::clicked, &pump, &CommandPump::readStep);
    connect(ui->pushButtonWrite, &QPushButton::clicked, this, &DialogDeviceConnect::writeStep);
    connect(ui->pushButtonSaveMatrix, &QPushButton::clicked, this, &DialogDeviceConnect::saveMatrix);
    connect(ui->comboBoxPID, &QComboBox::currentTextChanged, this, [this](const QString &pid) {
        ui->lineEditPID->setText(pid);
        connectStep();
    });
    connect(ui->checkBoxOntop, &QCheckBox::toggled, this, [this](bool onTop) {
        if (QWindow *window = windowHandle())
            window->setFlag(Qt::WindowStaysOnTopHint, onTop);
    });
}

void DialogDeviceConnect::startTimers()
{
    hotplugTimer.setSingleShot(true);
    hotplugTimer.setTimerType(Qt::PreciseTimer);
    hotplugTimer.setInterval(HotplugQuiet);
    connect(&hotplugTimer, &QTimer::timeout, this, &DialogDeviceConnect::refreshStep);

    inputPollTimer.setTimerType(Qt::PreciseTimer);
    connect(&inputPollTimer, &QTimer::timeout, this, &DialogDeviceConnect::pollInput);
    inputPollTimer.start(InputPollPeriod);
    startMusicTimer();
}

void DialogDeviceConnect::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        rows->retranslate();
    }
    QDialog::changeEvent(event);
}

void DialogDeviceConnect::DoSendCommand(quint8 command, int length, bool immediate)
{
    pump.enqueue(framing::bareCommand(std::clamp(length, 1, MaxCommandLength), {command}), kick(immediate));
}

void DialogDeviceConnect::DoSendHex(const QString &text, bool immediate)
{
    pump.enqueue(QByteArray::fromHex(text.toLatin1()), kick(immediate));
}

void DialogDeviceConnect::DoReadAll()
{
    Q_EMIT onReadAll();
    readingAll = true;
    musicOn = false;
    // A page that was asked for before must not be filed among those of this sequence.
    pump.restart();
    cache.beginRead();
    const QList<QByteArray> commands = readSequence(cache.currentProfile, cache.versionAtLeast300);
    for (const QByteArray &command : commands)
        pump.enqueue(command, CommandPump::Kick::Deferred);
}

void DialogDeviceConnect::endReadSequence()
{
    if (!readingAll)
        return;
    readingAll = false;
    cache.endRead();
    QTimer::singleShot(ReadDoneDelay, Qt::PreciseTimer, this, &DialogDeviceConnect::onReadDone);
}

void DialogDeviceConnect::DoFactoryReset()
{
    cache.restoreDefaultMatrices();
    BuildRowCommand(rows->rowOf(command::SetReset), true);
    DoReadAll();
}

void DialogDeviceConnect::BuildRowCommand(int row, bool write)
{
    if (readingAll || row < 0 || row >= rows->rowCount())
        return;
    ui->lineEditCmd->setText(QString::fromLatin1(rows->rowBytes(row).toHex(' ').toUpper()));
    if (write)
        writeStep();
}

void DialogDeviceConnect::writeStep()
{
    if (isConnected() && !readingAll)
        DoSendHex(ui->lineEditCmd->text().trimmed(), true);
}
