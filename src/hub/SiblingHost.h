#pragma once

#include "SettingsKeys.h"
#include "SiblingOperations.h"
#include "Siblings.h"

#include <array>
#include <QObject>
#include <QTimer>

class QStackedWidget;
class QWidget;

/// Hosts the sibling drivers: starts them hidden, finds their windows, hands them the device that a card was
/// clicked for, and shows them inside the hub or in its place until the hub is asked for again. Decides which
/// keyboards the hub serves itself. GUI thread only.
class SiblingHost : public QObject
{
    Q_OBJECT

public:
    /// The parts of the hub's window that hosting works on.
    struct Stage
    {
        QWidget *hub;          ///< the window
        QStackedWidget *pages; ///< its pages, as below
        QWidget *frame;        ///< takes the windows of embedded drivers
    };

    static constexpr int CardPage = 0;
    static constexpr int EmbedPage = 1;
    static constexpr int NativePage = 2;

    /// \a operations and what \a stage names must outlive this object.
    SiblingHost(SiblingOperations &operations, const Stage &stage, bool tarnwickBuild,
                QObject *parent = nullptr);

    /// Ends drivers that an earlier run left behind, starts those under \a root, and begins to look for their
    /// windows and for requests to return.
    void start(const QString &root);
    /// Brings the values that hub and drivers share to their initial state.
    void resetValues();

    /// Opens the device of a card: natively, or 100 ms later in its sibling. \a device must stay valid until
    /// the next call or return; null is ignored.
    void openDevice(DeviceEnumInfo *device, const QString &image);
    /// Asks for the cards, as a sibling does; they show within 100 ms.
    void requestReturn();
    /// The return button was used: the cards at once, the narrow window 100 ms later.
    void leaveEmbedded();

    /// Ends the processes of all drivers, when the hub closes.
    void endProcesses();
    /// Asks the windows that were found to close, when the hub closes.
    void closeWindows();

    /// The locale for hand-overs, such as "zh-CN"; empty leaves it out.
    void setLocaleTag(const QString &tag) { localeTag = tag; }
    /// The family of the device last opened; -1 after a return.
    int hostedFamily() const { return family; }

    /// Whether the hub serves this keyboard itself.
    static bool isNative(const DeviceEnumInfo &device);

Q_SIGNALS:
    /// The language menu is in the way.
    void languageMenuUnwanted();
    /// The window is to take its narrow or its wide size.
    void windowModeWanted(bool narrow);
    /// The floating return button is to show or to hide.
    void returnButtonWanted(bool shown);
    /// Connect to this keyboard, turn to NativePage and show it there.
    void nativeDeviceOpened(DeviceEnumInfo *device, QString image);
    /// The record whose page is open, or null.
    void currentDeviceChanged(DeviceEnumInfo *device);
    /// Whether a driver's own window stands in the hub's place.
    void hostingChanged(bool hosting);
    /// The window counts as holding the pointer.
    void pointerInside();

private:
    using Window = SiblingOperations::Window;

    template <typename T>
    void write(const SettingsKey<T> &key, const QVariant &value);
    template <typename T>
    void reset(const SettingsKey<T> &key)
    {
        write(key, key.initialValue());
    }
    template <typename T>
    QVariant read(const SettingsKey<T> &key) const;

    QString programOf(int slot) const;
    void watchSiblings();
    void restartIfGone(int slot);
    Window findWindow(int slot);
    void adopt(int slot, Window window);
    void hideSiblings();

    void handOver(const DeviceEnumInfo &device);
    void handOverToRy(const DeviceEnumInfo &device);
    void showSiblingWindow();
    void showInHubsPlace(Window window);
    void settleInHubsPlace(Window window);
    void showEmbedded(Window window);
    void showReturnButton();

    void watchReturn();
    void setHosting(bool hosting);

    SiblingOperations &platform;
    const Stage stage;
    const SiblingTable &siblings;
    std::array<Window, 10> siblingWindows{}; ///< by slot; 0 where no window was found
    QString rootFolder;
    QString localeTag;
    QTimer findTimer;
    QTimer returnTimer;
    QTimer showTimer;
    DeviceEnumInfo *openedDevice = nullptr;
    int family = 0;
    bool hosting = false;
    bool returnArmed = true; ///< false while a window has just taken the hub's place: requests are stale then
};
