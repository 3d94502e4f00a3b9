#include "MainWindow.h"

#include "AbsentCards.h"
#include "DeviceList.h"
#include "DialogDeviceConnect.h"
#include "FloatButton.h"
#include "FrameDeviceHolder.h"
#include "FrameDeviceShow.h"
#include "FrameSystemInfo.h"
#include "HubLog.h"
#include "HubSettings.h"
#include "HubStyle.h"
#include "HubTray.h"
#include "Look.h"
#include "ModuleGeneralMasker.h"
#include "ModuleLangMenu.h"
#include "SiblingHost.h"
#include "SiblingOperations.h"
#include "Siblings.h"
#include "SingleInstance.h"
#include "ui_MainWindow.h"
#include "USBNotifier.h"

#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QSettings>

using namespace std::chrono_literals;

namespace {

constexpr auto EscapeWatchPeriod = 30ms;
constexpr auto EmptinessWatchPeriod = 100ms;
constexpr auto LockWatchPeriod = 5000ms;
constexpr auto HotplugQuiet = 300ms;
constexpr auto FirstScanDelay = 500ms;
constexpr auto CardPageScanPeriod = 30s;
constexpr auto OtherPageScanPeriod = 60s;
constexpr auto LanguageDelay = 10ms;
constexpr auto ArrowHideDelay = 50ms;

constexpr int CardSpacing = 20;
constexpr QSize HeaderIconSize(20, 20);
constexpr QSize NarrowSize(1280, 900);
constexpr QSize WideSize(1520, 900);

/// Device pictures are looked up by the device's name, which may hold blanks; their files never do.
void renamePicturesWithBlanks()
{
    const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/images/"));
    const QStringList names = folder.entryList({QStringLiteral("* *")}, QDir::Files);
    for (const QString &name : names) {
        QString renamed = name;
        renamed.replace(QLatin1Char(' '), QLatin1Char('-'));
        QFile::rename(folder.filePath(name), folder.filePath(renamed));
    }
}

} // namespace

MainWindow::MainWindow(const InstalledTranslators &installed, QWidget *parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui::MainWindow>())
    , translators(installed)
    , settings(platform::hubSettings(tarnwickBuild))
    , languages(settings)
{
    ui->setupUi(this);
    if (!takeTheOnlyPlace())
        return;
    buildShell();
    renamePicturesWithBlanks();
    connectHeader();
    buildFloatButtons();
    startEnumeration();
    startSiblings();
    connectTray();
    connectDevicePage();
    startTimers();
    updateCounts();
    setWindowMode(true);
}

MainWindow::~MainWindow() = default;

bool MainWindow::takeTheOnlyPlace()
{
    instance = std::make_unique<platform::SingleInstance>(
        tarnwickBuild ? QStringLiteral("TRWAudioApp_71A7F2D4-5566-4F99")
                      : QStringLiteral("OrbeAudioApp_71A7F2D4-5566-4F99"));
    if (!instance->acquire()) {
        secondInstance = true;
        return false;
    }
    connect(instance.get(), &platform::SingleInstance::summoned, this, &MainWindow::comeForward);
    return true;
}

QString MainWindow::brandTitle() const
{
    return tarnwickBuild ? QStringLiteral("Tarnwick Dirver Hub") : QStringLiteral("Orbe Dirver Hub");
}

void MainWindow::buildShell()
{
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::MSWindowsFixedSizeDialogHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowTitle(brandTitle());
    setWindowIcon(QIcon(QStringLiteral(":/images/logo.png")));
    setStyleSheet(hubstyle::Window);
    ui->header->setStyleSheet(hubstyle::Header);
    ui->pushButtonScan->setStyleSheet(hubstyle::ScanButton);
    setHeaderIcons();
    ui->stackedWidget->hide();
    ui->labelPrev->hide();
    ui->labelNext->hide();
    ui->scrollArea->viewport()->setAutoFillBackground(false);
    ui->scrollAreaWidgetContents->setAutoFillBackground(false);
    const QString pictures = QCoreApplication::applicationDirPath() + QStringLiteral("/images/");
    splash.load(pictures +
                (tarnwickBuild ? QStringLiteral("trgear.png") : QStringLiteral("MainPicture.png")));
    logo = look::picture(tarnwickBuild ? QStringLiteral(":/images/Trwlogo.png")
                                       : QStringLiteral(":/images/OrbeFlag.png"),
                         this);
    cardLayout = ui->layoutDevices;
    cardLayout->setSpacing(CardSpacing);
    cardLayout->setAlignment(Qt::AlignLeft);
    absentCards = std::make_unique<AbsentCards>(cardLayout, ui->scrollAreaWidgetContents);
    ui->stackedWidget->setCurrentIndex(SiblingHost::CardPage);
    connect(ui->frameHold, &FrameDeviceHolder::onReturn, this,
            [this] { ui->stackedWidget->setCurrentIndex(SiblingHost::CardPage); });
}

void MainWindow::setHeaderIcons()
{
    const std::array<std::pair<QPushButton *, const char *>, 4> icons{{{ui->pushButtonLang, "language"},
                                                                       {ui->pushButtonSet, "settings"},
                                                                       {ui->pushButtonMin, "minimise"},
                                                                       {ui->pushButtonExit, "close"}}};
    for (const auto &[button, name] : icons) {
        button->setIcon(QIcon(QStringLiteral(":/images/hub/%1.png").arg(QLatin1String(name))));
        button->setIconSize(HeaderIconSize);
        button->setFocusPolicy(Qt::TabFocus); // a ring is for those who came by key
    }
}

void MainWindow::connectHeader()
{
    langMenu = new ModuleLangMenu(this);
    connect(langMenu, &ModuleLangMenu::onLangChanged, this, &MainWindow::applyLanguage);
    connect(ui->pushButtonLang, &QPushButton::clicked, this, [this] {
        langMenu->openBelow(ui->pushButtonLang->mapToGlobal(ui->pushButtonLang->rect().bottomLeft()));
    });
    connect(ui->pushButtonSet, &QPushButton::clicked, this, &MainWindow::openSettings);
    connect(ui->pushButtonMin, &QPushButton::clicked, this, [this] {
        showMinimized();
        lower();
    });
    connect(ui->pushButtonExit, &QPushButton::clicked, this, &MainWindow::close);
    connect(ui->pushButtonScan, &QPushButton::clicked, this, &MainWindow::searchAgain);
}

void MainWindow::buildFloatButtons()
{
    using Look = FloatButton::Look;
    floatPrev = new FloatButton(Look::Arrow, QStringLiteral(":/images/a-left.png"), this);
    floatNext = new FloatButton(Look::Arrow, QStringLiteral(":/images/a-right.png"), this);
    floatReturn = new FloatButton(Look::Pill, QStringLiteral(":/images/btn-return.png"), this);
    nameFloatButtons();
    connect(floatPrev, &FloatButton::released, this, [this] { scrollCards(-1); });
    connect(floatNext, &FloatButton::released, this, [this] { scrollCards(1); });
    connect(floatReturn, &FloatButton::released, this, [this] {
        floatReturn->hide();
        siblings->leaveEmbedded();
        ui->scrollArea->update();
    });
    logoPressTimer.setSingleShot(true);
    connect(&logoPressTimer, &QTimer::timeout, this, [this] { logoPresses = 0; });
    arrowHideTimer.setSingleShot(true);
    arrowHideTimer.setInterval(ArrowHideDelay);
    connect(&arrowHideTimer, &QTimer::timeout, this, [this] {
        floatPrev->hide();
        floatNext->hide();
    });
    const std::array<QObject *, 8> watched{
        ui->labelPrev, ui->labelNext, floatPrev,      floatNext,
        floatReturn,   ui->labelLogo, ui->scrollArea, ui->scrollArea->viewport()};
    for (QObject *object : watched)
        object->installEventFilter(this);
}

void MainWindow::nameFloatButtons()
{
    floatPrev->setAccessibleName(tr("向左滚动"));
    floatNext->setAccessibleName(tr("向右滚动"));
    floatReturn->setAccessibleName(tr("返回"));
}

void MainWindow::startEnumeration()
{
    devices = new DeviceList(this);
    enumThread = OrbeDeviceEnum::launch(tarnwickBuild);
    devices->watch(enumThread.get());
    connect(devices, &DeviceList::oEnumDeiceDone, this, &MainWindow::refreshCards);

    hotplugTimer.setSingleShot(true);
    hotplugTimer.setInterval(HotplugQuiet);
    connect(&hotplugTimer, &QTimer::timeout, this, &MainWindow::requestScan);
    const USBNotifier *notifier = USBNotifier::instance(this);
    connect(notifier, &USBNotifier::devicePluggined, &hotplugTimer, qOverload<>(&QTimer::start));
    connect(notifier, &USBNotifier::devicePluggined, DialogDeviceConnect::instance(),
            &DialogDeviceConnect::deviceChanged);
}

void MainWindow::startSiblings()
{
    operations = SiblingOperations::create(settings);
    siblings = new SiblingHost(*operations, {this, ui->stackedWidget, ui->frameEmb}, tarnwickBuild, this);
    connect(siblings, &SiblingHost::languageMenuUnwanted, langMenu, &QWidget::hide);
    connect(siblings, &SiblingHost::windowModeWanted, this, &MainWindow::setWindowMode);
    connect(siblings, &SiblingHost::returnButtonWanted, this, [this](bool shown) {
        placeReturnButton();
        floatReturn->setVisible(shown);
    });
    connect(siblings, &SiblingHost::nativeDeviceOpened, this, &MainWindow::openNative);
    connect(siblings, &SiblingHost::currentDeviceChanged, devices, &DeviceList::setCurrentDevice);
    connect(siblings, &SiblingHost::hostingChanged, this,
            [this](bool hosting) { enumThread->setHosting(hosting); });
    connect(siblings, &SiblingHost::pointerInside, this, [this] { pointerInside = true; });
    connect(devices, &DeviceList::currentDeviceLost, siblings, &SiblingHost::requestReturn);
    siblings->start(siblingRoot(QCoreApplication::applicationDirPath()));
    siblings->resetValues();
}

void MainWindow::connectTray()
{
    tray = new HubTray(
        tarnwickBuild ? QStringLiteral("Tarnwick Driver") : QStringLiteral("ORBE Cloud Driver"), this);
    connect(tray, &HubTray::activated, this, [this] {
        if (!isHidden() && !isMinimized())
            hide();
        else
            showNormal();
    });
    connect(tray, &HubTray::showChosen, this, &MainWindow::showFromTray);
    connect(tray, &HubTray::hideChosen, this, [this] {
        hide();
        trayHidden = true;
    });
    connect(tray, &HubTray::quitChosen, qApp, &QCoreApplication::quit);
}

void MainWindow::connectDevicePage()
{
    const DialogDeviceConnect *connection = DialogDeviceConnect::instance();
    connect(connection, &DialogDeviceConnect::onUpdataLayer, ui->frameHold, &FrameDeviceHolder::setLayer);
    connect(connection, &DialogDeviceConnect::onReadAll, this,
            [this] { enumThread->setScanSuspended(true); });
    connect(connection, &DialogDeviceConnect::onReadDone, this,
            [this] { enumThread->setScanSuspended(false); });
    connect(connection, &DialogDeviceConnect::onKeyTesting, this,
            [this](bool testing) { keyTesting = testing; });
}

void MainWindow::every(std::chrono::milliseconds period, void (MainWindow::*work)())
{
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, work);
    timer->start(period);
}

void MainWindow::startTimers()
{
    every(EscapeWatchPeriod, &MainWindow::watchEscape);
    every(EmptinessWatchPeriod, &MainWindow::watchEmptiness);
    every(LockWatchPeriod, &MainWindow::watchLock);
    scanTimer.setSingleShot(true);
    connect(&scanTimer, &QTimer::timeout, this, &MainWindow::scanPeriodically);
    scanTimer.start(FirstScanDelay);
    QTimer::singleShot(LanguageDelay, this, [this] { langMenu->selectLanguage(languages.savedLanguage()); });
}

void MainWindow::requestScan()
{
    if (DialogDeviceConnect::instance()->isCalibrating())
        qCDebug(lcHub) << "No search during a calibration";
    else
        enumThread->requestScan();
}

void MainWindow::scanPeriodically()
{
    requestScan();
    const bool onCards = ui->stackedWidget->currentIndex() == SiblingHost::CardPage;
    scanTimer.start(onCards ? CardPageScanPeriod : OtherPageScanPeriod);
}

void MainWindow::searchAgain()
{
    setWindowMode(true);
    floatReturn->hide();
    ui->stackedWidget->setCurrentIndex(SiblingHost::CardPage);
    devices->clear();
    while (QLayoutItem *item = cardLayout->takeAt(0)) {
        item->widget()->hide();
        delete item;
    }
    requestScan();
}

void MainWindow::refreshCards()
{
    int index = 0;
    for (DeviceEnumInfo *device : devices->devices()) {
        if (!device->online)
            continue;
        FrameDeviceShow *card = FrameDeviceShow::acquire(index++, ui->scrollAreaWidgetContents);
        if (!card)
            break;
        card->setScrollArea(ui->scrollArea);
        card->setDevice(device);
        card->show();
        if (cardLayout->indexOf(card) < 0)
            cardLayout->addWidget(card);
        if (!card->signalsConnected()) {
            card->setSignalsConnected(true);
            connect(card, &FrameDeviceShow::onReport, ui->frameHold, &FrameDeviceHolder::showBattery);
            connect(card, &FrameDeviceShow::onClicked, siblings, &SiblingHost::openDevice);
        }
    }
    absentCards->refresh(*devices);
    updateCounts();
}

void MainWindow::updateCounts()
{
    const int count = devices->onlineCount();
    FrameDeviceShow::hideFrom(count);
    ui->labelInfo0->setText(tr("我的设备") + QStringLiteral("(%1)").arg(count));
    ui->pushButtonLang->setText(languages.languageText());
    tray->retranslate();
}

void MainWindow::setWindowMode(bool narrow)
{
    const QSize size = narrow ? NarrowSize : WideSize;
    const QRect screen = QGuiApplication::screens().constFirst()->geometry();
    const int left = std::max(0, (screen.width() - size.width()) / 2);
    const int top = std::max(0, (screen.height() - size.height()) / 2);
    setFixedSize(size);
    move(left, top);
}

void MainWindow::applyLanguage(int index, const QString &text)
{
    languages.apply(index, text, translators, siblings->hostedFamily());
    siblings->setLocaleTag(languages.localeTag());
    updateCounts();
}

void MainWindow::openNative(DeviceEnumInfo *device, const QString &image)
{
    DialogDeviceConnect::instance()->DoConnectDevice(device->vendorId, device->productId,
                                                     device->connectionType == BluetoothConnection,
                                                     device->vendorPath, device->devicePath);
    ui->stackedWidget->setCurrentIndex(SiblingHost::NativePage);
    ui->frameHold->setDevice(device, image, device->displayName);
}

void MainWindow::openSettings()
{
    auto *info = new FrameSystemInfo;
    ModuleGeneralMasker masker(info, ui->stackedWidget);
    masker.setStyleSheet(hubstyle::SettingsMask);
    connect(info, &FrameSystemInfo::finished, &masker, &QDialog::setResult);
    masker.exec();
    info->deleteLater();
}
