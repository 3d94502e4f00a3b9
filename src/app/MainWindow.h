#pragma once

#include "LanguageSwitcher.h"
#include "OrbeDeviceEnum.h"

#include <chrono>
#include <memory>
#include <QMainWindow>
#include <QPixmap>
#include <QPointF>
#include <QTimer>

struct DeviceEnumInfo;
class AbsentCards;
class DeviceList;
class FloatButton;
class HubTray;
class ModuleLangMenu;
class QHBoxLayout;
class QSettings;
class SiblingHost;
class SiblingOperations;
namespace platform {
class SingleInstance;
}
namespace Ui {
class MainWindow;
}

/// The hub's window: the cards of the devices, the frame that embeds a sibling driver, and the page of a
/// native keyboard. It owns the list of devices, the enumeration thread and the tray icon, and lives for the
/// whole run.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// \a translators are reloaded when the user chooses a language; they must outlive the window.
    explicit MainWindow(const InstalledTranslators &translators, QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Whether another hub runs already, which was asked to come forward; this one must end at once.
    bool isSecondInstance() const { return secondInstance; }

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool takeTheOnlyPlace();
    QString brandTitle() const;
    void buildShell();
    void setHeaderIcons();
    void connectHeader();
    void buildFloatButtons();
    void nameFloatButtons();
    void startEnumeration();
    void startSiblings();
    void connectTray();
    void connectDevicePage();
    void startTimers();
    void every(std::chrono::milliseconds period, void (MainWindow::*work)());

    void requestScan();
    void scanPeriodically();
    void searchAgain();
    void refreshCards();
    void updateCounts();
    void setWindowMode(bool narrow);
    void applyLanguage(int index, const QString &text);
    void openNative(DeviceEnumInfo *device, const QString &image);
    void openSettings();

    void watchEscape();
    void watchEmptiness();
    void watchLock();
    void tellGate();

    void comeForward();
    void showFromTray();
    void blinkTopmost(std::chrono::milliseconds on, std::chrono::milliseconds off);
    bool pointerIsOutside() const;
    void placeFloatButtons();
    void placeReturnButton();
    void scrollCards(int direction);
    void countLogoPress();
    void paintHeader(QPainter &painter);
    void paintSplash(QPainter &painter);

    std::unique_ptr<Ui::MainWindow> ui;
    bool tarnwickBuild = false; ///< nothing sets it: the program runs as the first brand
    InstalledTranslators translators;
    QSettings &settings;
    LanguageSwitcher languages;
    std::unique_ptr<platform::SingleInstance> instance;
    DeviceList *devices = nullptr;
    OrbeDeviceEnum::Pointer enumThread;
    std::unique_ptr<SiblingOperations> operations;
    SiblingHost *siblings = nullptr;
    ModuleLangMenu *langMenu = nullptr;
    HubTray *tray = nullptr;
    FloatButton *floatPrev = nullptr;
    FloatButton *floatNext = nullptr;
    FloatButton *floatReturn = nullptr;
    QHBoxLayout *cardLayout = nullptr;
    std::unique_ptr<AbsentCards> absentCards;
    QPixmap splash;
    QPixmap logo;
    QTimer arrowHideTimer;
    QTimer scanTimer;
    QTimer hotplugTimer;
    QTimer logoPressTimer;
    QPointF dragOffset;
    int logoPresses = 0;
    bool secondInstance = false;
    bool cardsWereEmpty = true;
    bool dragging = false;
    bool closing = false;
    bool keyTesting = false;
    bool trayHidden = false;
    bool pointerInside = true;
};
