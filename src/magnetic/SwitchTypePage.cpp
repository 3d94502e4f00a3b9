#include "SwitchTypePage.h"

#include "DialogDeviceConnect.h"
#include "FocusRing.h"
#include "KeyboardButton.h"
#include "KeyMatrix.h"
#include "Look.h"
#include "SwitchTypes.h"
#include "ui_SwitchTypePage.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QEvent>

namespace {

/// A type that the page offers.
struct Offer
{
    quint8 type;
    const char *picture;
    const char *name;
};

// The third is named for another type than it sets. Deliberate: keyboards are sold with the name it shows.
constexpr std::array Offers{
    Offer{25, ":/images/rt/mtico09.png", QT_TRANSLATE_NOOP("SwitchTypePage", "炫光")},
    Offer{31, ":/images/rt/mtico10.png", QT_TRANSLATE_NOOP("SwitchTypePage", "闪电")},
    Offer{95, ":/images/rt/mtico14.png", QT_TRANSLATE_NOOP("SwitchTypePage", "星芒磁轴")},
    Offer{1, ":/images/rt/mtico01.png", QT_TRANSLATE_NOOP("SwitchTypePage", "磁玉")},
    Offer{2, ":/images/rt/mtico02.png", QT_TRANSLATE_NOOP("SwitchTypePage", "磁玉Pro")},
    Offer{3, ":/images/rt/mtico03.png", QT_TRANSLATE_NOOP("SwitchTypePage", "磁玉Gaming")},
    Offer{4, ":/images/rt/mtico06.png", QT_TRANSLATE_NOOP("SwitchTypePage", "天王")},
    Offer{5, ":/images/rt/mtico05.png", QT_TRANSLATE_NOOP("SwitchTypePage", "万磁王")},
};

constexpr int FirstId = 2; ///< automatic ids of a button group run downward from -2
constexpr int IconSize = 56;
constexpr int TileHeight = 96;
constexpr int TileRadius = 14;

} // namespace

SwitchTypePage::SwitchTypePage(QWidget *parent)
    : MagneticPage(parent)
    , ui(std::make_unique<Ui::SwitchTypePage>())
    , group(new QButtonGroup(this))
{
    ui->setupUi(this);
    group->setObjectName(QStringLiteral("buttonGroupMT"));
    addTypes();
    showNames();
    connect(group, &QButtonGroup::idClicked, this, &SwitchTypePage::pickType);
    group->buttons().constFirst()->click();
}

SwitchTypePage::~SwitchTypePage() = default;

void SwitchTypePage::addTypes()
{
    for (int place = 0; place < int(Offers.size()); ++place) {
        auto *button = new QPushButton(this);
        button->setObjectName(QStringLiteral("pushButtonMT%1").arg(place));
        button->setCheckable(true);
        button->setCursor(Qt::PointingHandCursor);
        button->setIcon(QIcon(QLatin1String(Offers.at(size_t(place)).picture)));
        button->setIconSize({IconSize, IconSize});
        button->setFixedHeight(TileHeight);
        button->setProperty("tile", true);
        FocusRing::follow(button, TileRadius);
        group->addButton(button);
        auto *name = new QLabel(this);
        name->setObjectName(QStringLiteral("labelName%1").arg(place));
        name->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        name->setTextFormat(Qt::PlainText);
        name->setWordWrap(true);
        names.append(name);
        ui->layoutTypes->addWidget(button, 0, place);
        ui->layoutTypes->addWidget(name, 1, place);
        ui->layoutTypes->setColumnStretch(place, 1);
    }
}

void SwitchTypePage::pickType(int id)
{
    const int place = qAbs(id) - FirstId;
    if (place < 0 || place >= int(Offers.size()))
        return;
    paintType = Offers.at(size_t(place)).type;
}

void SwitchTypePage::enterPage()
{
    keyboard->enterValueMode(KeyboardButton::ColouredBorder);
    for (int i = 0; i < MatrixPositions; ++i) {
        const auto position = quint8(i);
        const quint32 type = connection ? connection->GetMagnetism(magnettable::SwitchType, position) : 0;
        showKey(keys::CodeOfPosition(position), quint8(type));
    }
}

void SwitchTypePage::leavePage()
{
    for (int i = 0; i <= ModuleKeyboard::AllKeys; ++i) {
        if (KeyboardButton *button = keyboard->keyButton(quint8(i)))
            button->setToolTip({});
    }
}

/// Colours alone don't tell sixteen types apart, so the key also names its type where the pointer rests.
void SwitchTypePage::showKey(quint8 code, quint8 type)
{
    keyboard->setKeyBorder(code, QColor(switchtypes::shownFor(type).color));
    if (KeyboardButton *button = keyboard->keyButton(code))
        button->setToolTip(nameOf(type));
}

QString SwitchTypePage::nameOf(quint8 type) const
{
    for (size_t place = 0; place < Offers.size(); ++place) {
        if (Offers.at(place).type == type)
            return names.at(qsizetype(place))->text();
    }
    const switchtypes::SwitchType *row = switchtypes::find(type);
    return row ? QCoreApplication::translate("FrameMagic", row->name) : QString();
}

void SwitchTypePage::keyClicked(quint8 code)
{
    if (!canWrite(code))
        return;
    showKey(code, paintType);
    if (connection)
        connection->DoSetMagnetism(magnettable::SwitchType, code, paintType, 1);
}

void SwitchTypePage::showNames()
{
    for (size_t place = 0; place < Offers.size(); ++place) {
        const QString name = tr(Offers.at(place).name);
        names.at(qsizetype(place))->setText(name);
        group->button(-FirstId - int(place))->setAccessibleName(name);
        group->button(-FirstId - int(place))->setToolTip(name);
    }
}

void SwitchTypePage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showNames();
        if (isVisibleTo(parentWidget()))
            enterPage(); // the keys' tool tips
    }
    MagneticPage::changeEvent(event);
}
