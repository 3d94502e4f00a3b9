#include "FrameDeviceHolder.h"

#include "DeviceNameText.h"
#include "DialogDeviceConnect.h"
#include "FocusRing.h"
#include "FrameAbout.h"
#include "FrameKeySetting.h"
#include "FrameLight.h"
#include "FrameMacro.h"
#include "FrameMagic.h"
#include "FrameMain.h"
#include "HubLog.h"
#include "LinearFixing1.h"
#include "Look.h"
#include "ModuleGeneralMasker.h"
#include "ModuleLinear.h"
#include "NoticeBar.h"
#include "ProgressLine.h"
#include "ShellNotices.h"
#include "ShellStyle.h"
#include "SuperLabel.h"
#include "ui_FrameDeviceHolder.h"
#include "WorkMeter.h"

#include <array>
#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <utility>

using namespace std::chrono_literals;

namespace {

/// A place of the navigation column.
struct Place
{
    const char *picture; ///< a name among the pairs of pictures, or the path of an only one
    const char *tip;
};

constexpr std::array Places{
    Place{"shouye", QT_TRANSLATE_NOOP("FrameDeviceHolder", "首页")},
    Place{"jianweishezhi", QT_TRANSLATE_NOOP("FrameDeviceHolder", "键盘设置")},
    Place{"cizhoushezhi", QT_TRANSLATE_NOOP("FrameDeviceHolder", "磁轴设置")},
    Place{"hongshezhi", QT_TRANSLATE_NOOP("FrameDeviceHolder", "宏设置")},
    // The form calls this one 灯效设置, and that stands until the first change of language.
    Place{"dengxiaoshezhi", QT_TRANSLATE_NOOP("FrameDeviceHolder", "灯光设置")},
    Place{"guanyu", QT_TRANSLATE_NOOP("FrameDeviceHolder", "关于")},
    Place{":/images/User.png", QT_TRANSLATE_NOOP("FrameDeviceHolder", "用户")},
    Place{":/images/btn-return.png", QT_TRANSLATE_NOOP("FrameDeviceHolder", "返回")},
};

constexpr int HomePage = 0;
constexpr int KeyPage = 1;
constexpr int PageCount = 6;
constexpr int FirstLeavingPlace = 6; ///< from here on a place leaves the shell
constexpr QSize PageSize(1124, 740);
constexpr auto FirstPageDelay = 700ms; ///< the window is painted by then

constexpr int ToolbarRadius = 25;
constexpr int Layers = 4;
constexpr int FirstLayerId = -2; ///< automatic ids of a button group run downward from here

constexpr int PairingMargin = 20;
const QString PairingStyle =
    QStringLiteral("QFrame#TestLinear{background-color:white;min-height:320px; border-radius:24px;}");

const QString PlaceStyle = QStringLiteral("QLabel { background-color: transparent; }");
const QString SelectedPlaceStyle =
    QStringLiteral("QLabel { background-color: #6329B6; border-radius: 16px;}");

/// The picture of a place, selected or not.
QString picturePath(const char *picture, bool selected)
{
    const QLatin1String name(picture);
    if (name.startsWith(u':'))
        return name;
    return QStringLiteral(":/images/leftbtns/%1/%2.png").arg(int(selected)).arg(name);
}

void showPicture(QLabel *label, const QString &path)
{
    label->setPixmap(path.isEmpty() ? QPixmap() : look::picture(path, label));
}

} // namespace

FrameDeviceHolder::FrameDeviceHolder(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::FrameDeviceHolder>())
{
    ui->setupUi(this);
    new DialogDeviceConnect(this);
    buildNavigation();
    buildToolbar();
    connectToolbar();
    connectConnection();
    new WorkMeter(DialogDeviceConnect::instance()->workProgress(),
                  new ProgressLine(ui->FrameToolbar, ToolbarRadius), ui->labelWork);
    notices = new ShellNotices(*DialogDeviceConnect::instance(), new NoticeBar(ui->FrameHoder));
    labels.at(HomePage)->setSelected(true);
    ui->horizontalFrame->hide();
    QTimer::singleShot(FirstPageDelay, this, &FrameDeviceHolder::buildNextPage);
}

FrameDeviceHolder::~FrameDeviceHolder() = default;

// Six pages cost a multiple of all else in the program's start, so they come once the window stands: one in
// each turn of the event loop, polished, so that showing one for the first time takes no longer than later.
void FrameDeviceHolder::buildNextPage()
{
    QWidget *frame = ui->FrameHoder;
    QWidget *page = nullptr;
    switch (pages.size()) {
    case HomePage:
        page = home = new FrameMain(frame);
        break;
    case KeyPage:
        page = keySettings = new FrameKeySetting(frame);
        break;
    case 2:
        page = new FrameMagic(frame);
        break;
    case 3:
        page = new FrameMacro(frame);
        break;
    case 4:
        page = new FrameLight(frame);
        break;
    case 5:
        page = new FrameAbout(frame);
        break;
    default:
        return;
    }
    page->setVisible(pages.isEmpty());
    pages.append(page);
    page->setFixedSize(PageSize);
    ui->horizontalLayoutBR->addWidget(page, 0, Qt::AlignRight);
    page->ensurePolished();
    const auto children = page->findChildren<QWidget *>();
    for (const QWidget *child : children)
        child->ensurePolished();
    QTimer::singleShot(0, this, &FrameDeviceHolder::buildNextPage);
}

void FrameDeviceHolder::requirePages()
{
    while (pages.size() < PageCount)
        buildNextPage();
}

void FrameDeviceHolder::buildNavigation()
{
    labels = {ui->label1, ui->label2, ui->label3, ui->label4, ui->label5, ui->label6, ui->label7, ui->label8};
    for (qsizetype i = 0; i < labels.size(); ++i) {
        SuperLabel *label = labels.at(i);
        const char *picture = Places.at(size_t(i)).picture;
        label->setPictures(picturePath(picture, true), picturePath(picture, false));
        label->setStyles(SelectedPlaceStyle, PlaceStyle);
        label->installEventFilter(this);
    }
    ui->label6->hide();
    ui->label7->hide();
}

void FrameDeviceHolder::buildToolbar()
{
    showPicture(ui->labelConn, QStringLiteral(":/images/dev/usb.png"));
    ui->labelBatt->hide();
    ui->pushButtonPairing->hide();
    look::setStyleOnce(ui->horizontalFrame, shellstyle::LayerButtons);
    const auto layerButtons = ui->buttonGroupLayer->buttons();
    for (QAbstractButton *button : layerButtons) {
        button->installEventFilter(this);
        FocusRing::follow(button, look::PillRadius);
    }
    for (QPushButton *button : {ui->pushButtonPairing, ui->pushButtonReset, ui->pushButtonFixline}) {
        look::setStyleOnce(button, shellstyle::ActionButton);
        FocusRing::follow(button, look::PillRadius);
    }
}

void FrameDeviceHolder::connectToolbar()
{
    connect(ui->buttonGroupLayer, &QButtonGroup::idClicked, this, [](int id) {
        const int layer = FirstLayerId - id;
        if (layer >= 0 && layer < Layers)
            DialogDeviceConnect::instance()->DoSetProfile(quint8(layer));
    });
    // The restore sequence itself begins by putting the factory maps in place of those read.
    connect(ui->pushButtonReset, &QPushButton::clicked, DialogDeviceConnect::instance(),
            &DialogDeviceConnect::DoFactoryReset);
    connect(ui->pushButtonFixline, &QPushButton::clicked, this,
            [this] { LinearFixing1({}, {}, window()).exec(); });
    connect(ui->pushButtonPairing, &QPushButton::clicked, this, &FrameDeviceHolder::openPairing);
}

void FrameDeviceHolder::connectConnection()
{
    const DialogDeviceConnect *connection = DialogDeviceConnect::instance();
    connect(connection, &DialogDeviceConnect::onReadAll, this, [this] { showBusy(true); });
    connect(connection, &DialogDeviceConnect::onReadDone, this, [this] {
        qCDebug(lcHub) << "DialogDeviceConnect::onReadDone";
        showBusy(false);
        requirePages();
        keySettings->RefreshPage();
    });
}

void FrameDeviceHolder::setDevice(DeviceEnumInfo *device, const QString &image, const QString &name)
{
    currentDevice = device;
    requirePages();
    home->setDevicePicture(image);
    deviceName = name;
    showName();
}

void FrameDeviceHolder::showPage(SuperLabel *label, int index)
{
    if (DialogDeviceConnect::instance()->isReadingAll())
        return;
    if (index >= FirstLeavingPlace && index < labels.size()) {
        Q_EMIT onReturn();
        return;
    }
    if (!label || index < 0 || index >= PageCount)
        return;
    requirePages();
    label->setSelected(true);
    if (labels.contains(qobject_cast<SuperLabel *>(QApplication::focusWidget())))
        label->setFocus(); // the focus doesn't stay behind on another place
    for (QWidget *page : std::as_const(pages))
        page->hide();
    pages.at(index)->show();
    ui->horizontalFrame->setVisible(index == KeyPage); // the profiles belong to the key settings
}

void FrameDeviceHolder::setLayer(int layer)
{
    if (layer < 0 || layer >= Layers)
        return;
    if (QAbstractButton *button = ui->buttonGroupLayer->button(FirstLayerId - layer))
        button->click();
}

void FrameDeviceHolder::showBattery(DeviceEnumInfo *device, const QString &battImg, const QString &typeImg,
                                    const QString &tip, const QString &style)
{
    if (!device || device != currentDevice)
        return;
    ui->labelBatt->setHidden(battImg.isEmpty());
    showPicture(ui->labelBatt, battImg);
    look::setStyleOnce(ui->labelBatt, style);
    ui->labelBatt->setToolTip(tip);
    ui->labelBatt->setAccessibleName(tip);
    showPicture(ui->labelConn, typeImg);
}

void FrameDeviceHolder::openPairing()
{
    ModuleLinear travel;
    travel.setObjectName(QStringLiteral("TestLinear"));
    travel.setContentsMargins(PairingMargin, PairingMargin, PairingMargin, PairingMargin);
    travel.setStyleSheet(travel.styleSheet() + PairingStyle); // beside that of its controls
    ModuleGeneralMasker masker(&travel, window());
    connect(&masker, &ModuleGeneralMasker::onClicked, &masker, &QDialog::reject);
    masker.exec();
}

void FrameDeviceHolder::showName()
{
    // The profiles and the charge keep their room while they are hidden: the name doesn't jump.
    const int gap = ui->layoutToolbar->spacing();
    const QMargins margins = ui->layoutToolbar->contentsMargins();
    int room = ui->FrameToolbar->minimumWidth() - margins.left() - margins.right() - 2 * gap;
    for (const QWidget *widget : std::initializer_list<QWidget *>{
             ui->labelConn, ui->labelBatt, ui->horizontalFrame, ui->pushButtonReset, ui->pushButtonFixline}) {
        widget->ensurePolished();
        room -= qMax(widget->sizeHint().width(), widget->minimumWidth()) + gap;
    }
    devicename::show(ui->labelName, deviceName, room);
}

/// Tells the pointer that navigation waits for the end of a read.
void FrameDeviceHolder::showBusy(bool busy)
{
    for (SuperLabel *label : std::as_const(labels))
        label->setCursor(busy ? Qt::BusyCursor : Qt::PointingHandCursor);
}

void FrameDeviceHolder::showTips()
{
    for (qsizetype i = 0; i < labels.size(); ++i)
        labels.at(i)->setTip(tr(Places.at(size_t(i)).tip));
}

bool FrameDeviceHolder::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        if (auto *label = qobject_cast<SuperLabel *>(watched))
            showPage(label, int(labels.indexOf(label)));
        else if (auto *button = qobject_cast<QAbstractButton *>(watched))
            button->click(); // also for a press that began elsewhere; the button's own release finds it up
    }
    return QFrame::eventFilter(watched, event);
}

void FrameDeviceHolder::showEvent(QShowEvent *event)
{
    requirePages();
    QFrame::showEvent(event);
}

void FrameDeviceHolder::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showTips();
        showName();
        notices->retranslate();
    }
    QFrame::changeEvent(event);
}
