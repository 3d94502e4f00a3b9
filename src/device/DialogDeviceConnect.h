#pragma once

#include "CommandPump.h"
#include "DeviceCache.h"
#include "HidHandle.h"

#include <memory>
#include <QDialog>
#include <QTimer>

class CommandRows;
class ConsoleLog;
class ConsoleTable;
class QSettings;
namespace Ui {
class DialogDeviceConnect;
}

/// The live connection to one native keyboard, and in its visible form the engineering console. Its line
/// edits and its table are working state: the ids to connect to stand in the edits, the bytes of row-wise
/// commands in the table.
///
/// There is one in the program, created by the device page shell. GUI thread only. Operations that begin with
/// Do queue a command and change the cache at once, without waiting for the keyboard; the Get operations read
/// the cache. Without a keyboard a command is dropped without a word.
class DialogDeviceConnect : public QDialog
{
    Q_OBJECT

public:
    explicit DialogDeviceConnect(QWidget *parent = nullptr);
    ~DialogDeviceConnect() override;

    /// The one connection; null before it is created and after it is gone.
    static DialogDeviceConnect *instance();

    /// Connects to a keyboard unless it is the one already chosen. \a idText tells models apart, \a path is
    /// the HID path that a wireless keyboard is opened by; one on the cable is found by its ids.
    void DoConnectDevice(quint16 vid, quint16 pid, bool isWireless, const QString &idText,
                         const QString &path);

    /// Queues a command of zeros but for its command byte. \a length is kept to 1 to 64 bytes.
    void DoSendCommand(quint8 command, int length, bool immediate);
    /// Queues the bytes of a hex text; what isn't hex in it is passed over, and an empty command isn't sent.
    void DoSendHex(const QString &text, bool immediate);

    /// Changes the onboard profile, 0 to 3, and reads the keyboard whole half a second later.
    void DoSetProfile(quint8 layer);
    /// Reads the keyboard whole. What waited to be sent is dropped, and most writes do nothing until
    /// onReadDone.
    void DoReadAll();
    /// Puts the keyboard back to its factory settings and reads it.
    void DoFactoryReset();

    /// Puts the eight bytes of a catalogue row into the command line and, with \a write, sends them. Nothing
    /// happens during a read sequence or for a row that isn't there.
    void BuildRowCommand(int row, bool write);

    bool isConnected() const { return bool(commandHandle); }
    bool isReadingAll() const { return readingAll; }
    /// Depth of the key under test: 0 at rest, about 1 fully pressed.
    float GetKeyTravel() const { return keyTravel; }

    const DeviceCache &deviceCache() const { return cache; }
    CommandRows *commandRows() const { return rows; }

public Q_SLOTS:
    /// Something was plugged in or out: after 800 ms without another such event, look for keyboards and
    /// connect afresh.
    void deviceChanged();

Q_SIGNALS:
    void onConnect();
    void onDisconnect();
    void onReadBack(const QByteArray &data);
    void onGetPictrue(const QByteArray &data);
    void onUpdataLayer(int layer);
    void onReadAll();
    void onReadDone();
    void onKeyTest();
    void onKeyTesting(bool testing);
    void onCalibration(const QByteArray &data);

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectControls();
    void startTimers();

    void connectStep();
    void connectWireless();
    void connectWired(const QString &vidText, const QString &pidText);
    void openInterfaces(quint16 vid, quint16 pid);
    void beginIdentification();
    void rememberIds();
    void refreshStep();
    void writeStep();
    void closeHandles();

    void handleReply(const QByteArray &reply);
    void dispatch(const QByteArray &reply);
    void showReplyInRow(const QByteArray &reply);
    void showLightInRow(const QByteArray &reply, quint8 rowCommand);
    void takeIdentity(const QByteArray &reply);
    void takeMagnetPage(const QByteArray &reply);
    void endReadSequence();

    void pollInput();
    void takeKeyTestSample(const QByteArray &report);
    void saveMatrix();

    std::unique_ptr<Ui::DialogDeviceConnect> ui;
    QSettings *settings;
    HidHandle inputHandle;   ///< wired: the key-test stream
    HidHandle commandHandle; ///< connected while this is open
    HidHandle musicHandle;   ///< wired: the commands' interface a second time, for the music levels
    CommandRows *rows;
    ConsoleTable *table;
    ConsoleLog *log;
    CommandPump pump;
    DeviceCache cache;
    QTimer inputPollTimer;
    QTimer hotplugTimer;
    QString deviceIdText;
    QString devicePath;
    float keyTravel = 0;
    bool isWireless = false;
    bool calibrating = false;
    bool readingAll = false;
    bool musicOn = false;
};
