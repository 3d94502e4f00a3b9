#pragma once

#include "CommandPump.h"
#include "DeviceCache.h"
#include "HidHandle.h"
#include "LoopbackCapture.h"

#include <initializer_list>
#include <memory>
#include <QDialog>
#include <QPointer>
#include <QStringList>
#include <QTimer>

class CommandRows;
class ConsoleLog;
class ConsoleTable;
class QColor;
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

    class WriteGroup;

    // What keys do. keyCode is a key's code (see KeyMatrix.h), layer 0 to 3, position 0 to 127. While the
    // keyboard is read these writes do nothing.

    /// Gives a key a function on a layer of the current profile. \a last is 1 on the final write of a group,
    /// else 0. A code that no key has goes out as position FF and changes no cache.
    void DoSetKey(quint8 keyCode, const KeyEntry &entry, quint8 layer, quint8 last);
    /// Gives a key a function on the Fn layer. A code that no key has is handled as in DoSetKey.
    void DoSetFn(quint8 keyCode, const KeyEntry &entry);
    /// Gives a key its own code back, or no function at all.
    void DoSetKeyCode(quint8 keyCode, bool enabled, quint8 layer = 0);
    /// Gives a key its factory function on the Fn layer back, or none.
    void DoSetFnCode(quint8 keyCode, bool enabled);
    /// Puts a key back to its defaults on all layers and in its switch tables: ten writes, in one group. The
    /// code must be a real one: of any other, the tables are reset for all keys.
    void DoResetKey(quint8 keyCode);
    /// The function at a position of a layer, or of Fn matrix n for a layer of 0xF0 plus n; empty for a place
    /// that isn't known.
    void GetKeyEntry(KeyEntry &out, quint8 position, quint8 layer) const;
    /// What a key does in words: one name of a SnapKey, otherwise one for each of the four layers, empty for
    /// layers without a function. No names before the key's mode is known.
    void GetKeyDisplay(QStringList &out, quint8 keyCode) const;

    /// Sends a macro to a slot of the keyboard, 0 to 49, and lets a key play it: \a repeat times, in playback
    /// mode 0 (by count), 1 or 2. \a stream is what PackMacro made; of more than 14,278 bytes not all goes
    /// out. During a read the pages are queued, and the key keeps its function.
    void DoSetMacro(quint8 keyCode, quint16 repeat, quint8 mode, quint8 macroId, const QByteArray &stream);

    // Magnetic switches: per-key tables, numbered as in MagnetTables.h. While the keyboard is read these
    // writes do nothing.

    /// Writes one value of a table; the cache keeps as many bytes as the table is wide. \a commit is 1 on the
    /// last write of a group, else 0. Key code FF means all keys and changes no cache until the next read. A
    /// code that no key has does the same, so callers must pass real ones.
    void DoSetMagnetism(quint8 table, quint8 keyCode, quint32 value, quint8 commit);
    /// The cached value at a position; 0 for a place or table that isn't known.
    quint32 GetMagnetism(quint8 table, quint8 position) const;
    /// Changes the cache and sends nothing; a place or table that isn't known is left alone.
    void SetMagnetism(quint8 table, quint8 position, quint32 value);
    /// A key's mode with its flag: see KeyMode. 0 for a code that no key has.
    quint8 GetKeyMode(quint8 keyCode) const;
    /// Position of the SnapKey partner of the key at a position.
    quint8 GetKeyOption(quint8 position) const;
    /// Sets or clears the flag beside a key's mode and closes the group of writes. Codes as in
    /// DoSetMagnetism.
    void DoSetKeyFlag(quint8 keyCode, bool on);

    /// Start and stop the stream behind onKeyTest. The stop drops every command that waits.
    void DoStartKeyTest();
    void DoStopKeyTest();
    /// Depth of the key under test: 0 at rest, about 1 fully pressed.
    float GetKeyTravel() const { return keyTravel; }

    /// Starts the calibration: onCalibration comes about every 480 ms with a little-endian 16-bit reading for
    /// each position, the first time possibly with fewer.
    void DoStartCalibration();
    /// Ends the calibration and drops every command that waits; works during a read as well.
    void DoStopCalibration();

    // Settings

    /// Report rate, as the keyboard's code for it.
    void DoSetReportRate(quint8 value);
    quint8 GetReportRate() const { return cache.reportRate; }
    /// Debounce, as the keyboard counts it.
    void DoSetDebounce(quint8 value);
    quint8 GetDebounce() const { return cache.debounce; }
    /// Changes one option of the block that the keyboard sent at the connect. Ignored for an index past its
    /// end, and so before there is one. Index 6 stands where the checksum goes and never reaches the
    /// keyboard. Works during a read as well.
    void DoSetKbOption(quint8 index, quint8 value);
    /// An option; 0 for an index past the block.
    quint8 GetKbOption(quint8 index) const;
    /// Changes one of the four sleep times, slot 0 to 3, and sends all of them. They are kept as 16-bit
    /// seconds: from 1093 minutes on they wrap. Any other slot changes nothing, and all are sent. Does
    /// nothing while the keyboard is read.
    void DoSetSleepTime(int minutes, int slot);
    /// The sleep times in seconds.
    void GetSleepTimes(std::array<quint16, 4> &out) const;

    // Light. Numbers are cut to a byte. What isn't named in a call goes out as it was last set or read.

    void DoSetLedOnOff(bool off);
    /// Shows an effect, with an option of 0 to 15 whose meaning is the effect's. The music effect turns the
    /// music report on, any other turns it off.
    void DoSetLedEffect(int effect, quint8 option);
    /// Speed 0 (slowest) to 4.
    void DoSetLedSpeed(quint8 speed);
    void DoSetLedBrightness(int brightness);
    /// Sets the option byte as a whole, and with one above 6 the colour too.
    void DoSetLedColor(const QColor &colour, int option);
    /// Sends the side light's ten bytes: a free one, effect, speed, brightness, colour mode, red, green,
    /// blue, checksum, 0. Shorter blocks count as filled with 0, an empty one is ignored. Works during a
    /// read as well.
    void DoSetSideLed(const QByteArray &block);
    /// Writes a picture, three bytes for each position, into a slot and shows it. Slots are 0 to 4. Bytes of
    /// the map past the 392 that are sent don't count, and missing ones are black. Does nothing while the
    /// keyboard is read.
    void DoWriteUserPic(quint8 slot, const QByteArray &colourMap);
    /// Reads the picture of a slot; onGetPictrue brings it, as it came. Does nothing while the keyboard is
    /// read.
    void DoReadUserPic(quint8 slot);
    /// Whether the music report runs.
    bool isMusicOn() const { return musicOn; }

    bool isConnected() const { return bool(commandHandle); }
    /// Why the last connect step left no connection, if the keyboard is on the bus; None if it is not, or if
    /// there is a connection.
    OpenFailure openFailure() const { return isConnected() ? OpenFailure::None : failure; }
    bool isReadingAll() const { return readingAll; }
    /// Whether the calibration's sensor pages are being asked for. Another question to the keyboard could put
    /// its answer among them.
    bool isCalibrating() const { return calibrationTimer && calibrationTimer->isActive(); }

    const DeviceCache &deviceCache() const { return cache; }
    /// How far the keyboard is with what was asked of it.
    const WorkProgress &workProgress() const { return pump.workProgress(); }
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
    void noteFailure(const char *path);
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

    struct RowByte
    {
        int number; ///< 1 to 7
        quint8 value;
    };
    void writeRow(quint8 rowCommand, std::initializer_list<RowByte> bytes);
    void calibrationTick();
    void startMusicTimer();
    void musicTick();

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
    QTimer musicTimer;
    LoopbackCapture capture;
    QTimer *calibrationTimer = nullptr; ///< created at the first calibration
    quint64 calibrationTicks = 0;       ///< of all calibrations
    QString deviceIdText;
    QString devicePath;
    float keyTravel = 0;
    bool isWireless = false;
    quint16 vendorId = 0; ///< as given to DoConnectDevice, like the path
    quint16 productId = 0;
    OpenFailure failure = OpenFailure::None;
    bool calibrating = false;
    bool readingAll = false;
    bool musicOn = false;
};

/// Holds back the kick of every write made in its scope, so that a group of any length takes one turn of the
/// pump per frame instead of going out back to back: the first frame goes at the end of the scope, unless the
/// pump is at work already. Groups may be nested. GUI thread only.
class DialogDeviceConnect::WriteGroup
{
public:
    [[nodiscard]] explicit WriteGroup(DialogDeviceConnect &connection);
    ~WriteGroup();
    Q_DISABLE_COPY_MOVE(WriteGroup)

private:
    QPointer<CommandPump> pump;
};
