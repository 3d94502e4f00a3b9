#include "ModuleDKSTab.h"

#include "AccessibleControls.h"
#include "DialogDeviceConnect.h"
#include "FocusRing.h"
#include "Look.h"
#include "ModuleDKSAdjust.h"
#include "ModuleDKSItem.h"
#include "ModuleGeneralMasker.h"
#include "ModuleGenKeymapping.h"
#include "ui_ModuleDKSTab.h"

#include <cmath>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace {

constexpr float StepsPerMillimetre = 200;
constexpr float LongestTravel = 100; ///< millimetres, far beyond any switch; what a text may say at most
/// What each point of the travel does with the four functions, two bits each. The keyboard is always given
/// these; the rows' switches have no part in it.
constexpr quint32 Actions = 0x55565B6F;
constexpr int TravelRadius = 12;

const QString AdjustMaskStyle = QStringLiteral(
    "QDialog { background-color: rgba(240, 240, 240, 0.8);  border: none; border-radius: 32px;}");

QString travelText(double millimetres)
{
    return QString::number(millimetres, 'f', 2) + QStringLiteral(" mm");
}

} // namespace

ModuleDKSTab::ModuleDKSTab(QWidget *parent)
    : ModuleAdvancedTab(parent)
    , ui(std::make_unique<Ui::ModuleDKSTab>())
    , dksAdjust(std::make_unique<ModuleDKSAdjust>(this))
{
    ui->setupUi(this);
    dksAdjust->hide();
    items = {ui->frameDKS1, ui->frameDKS2, ui->frameDKS3, ui->frameDKS4};
    for (size_t row = 0; row < items.size(); ++row)
        connect(items[row], &ModuleDKSItem::onButtonClicked, this, [this, row] { pickRow(row); });
    ui->labelPress3->setPicture(QStringLiteral(":/images/k/ic_press.png"));
    ui->labelPress4->setPicture(QStringLiteral(":/images/k/ic_bottom.png"));
    ui->labelRelease3->setPicture(QStringLiteral(":/images/k/ic_lift.png"));
    ui->labelRelease4->setPicture(QStringLiteral(":/images/k/ic_peak.png"));
    for (QLabel *label : std::initializer_list<QLabel *>{ui->labelPress1, ui->labelPress3, ui->labelRelease2,
                                                         ui->labelRelease4})
        label->installEventFilter(this);
    for (QLabel *travel : {ui->labelPress1, ui->labelRelease2}) {
        FocusRing::follow(travel, TravelRadius);
        accessible::setRole(travel, QAccessible::Button);
    }
    FocusRing::follow(ui->pushButton_OKDKS, look::PillRadius);
    showTips();
    connect(ui->pushButton_OKDKS, &QPushButton::clicked, this, &ModuleDKSTab::save);
    connect(dksAdjust.get(), &ModuleDKSAdjust::onValueSave, this,
            [this](const QString &text) { setTravel(double(text.toFloat())); });
}

ModuleDKSTab::~ModuleDKSTab() = default;

void ModuleDKSTab::loadKey(const ClickedKey &key)
{
    const DialogDeviceConnect *connection = DialogDeviceConnect::instance();
    if (key.mode != KeyMode::DynamicKeystroke || !connection)
        return;
    for (quint8 layer = 0; layer < Rows; ++layer)
        dksEntries[layer] = entryOf(key, layer);
    showRows();
    ui->pushButton_DKS->setText(key.text);
    setTravel(connection->GetMagnetism(magnettable::DksTravel, key.position) / double(StepsPerMillimetre));
}

void ModuleDKSTab::takeKey(const ClickedKey &key)
{
    dksKey = key.code;
    ui->pushButton_DKS->setText(key.text);
}

/// The point at which the key is pressed and the one at which it is back are one number.
void ModuleDKSTab::setTravel(double millimetres)
{
    DKSTravel = std::isfinite(millimetres) ? qBound(0.0, millimetres, double(LongestTravel)) : 0.0;
    ui->labelPress1->setText(travelText(DKSTravel));
    ui->labelRelease2->setText(travelText(DKSTravel));
}

void ModuleDKSTab::adjustTravel(const QString &shown)
{
    dksAdjust->setTravelText(QString(shown).remove(QStringLiteral("mm")).trimmed());
    // On the heap: a window that goes meanwhile takes the mask along.
    const QPointer<ModuleGeneralMasker> mask =
        new ModuleGeneralMasker(dksAdjust.get(), adjustArea ? adjustArea : window());
    look::setStyleOnce(mask, AdjustMaskStyle);
    mask->exec();
    delete mask;
}

bool ModuleDKSTab::eventFilter(QObject *watched, QEvent *event)
{
    bool opens = false;
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *release = static_cast<QMouseEvent *>(event);
        const QRect area = qobject_cast<QWidget *>(watched)->rect();
        opens = release->button() == Qt::LeftButton && area.contains(release->position().toPoint());
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        opens = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    }
    if (!opens)
        return ModuleAdvancedTab::eventFilter(watched, event);
    const bool pressSide = watched == ui->labelPress1 || watched == ui->labelPress3;
    adjustTravel((pressSide ? ui->labelPress1 : ui->labelRelease2)->text());
    return true; // the tab may be gone by now
}

void ModuleDKSTab::pickRow(size_t row)
{
    const std::optional<KeyEntry> entry = pickEntry();
    if (!entry)
        return;
    dksEntries[row] = *entry;
    showRows();
}

void ModuleDKSTab::showRows()
{
    for (size_t row = 0; row < items.size(); ++row)
        items[row]->setFunctionText(ModuleGenKeymapping::KeyEntryText(dksEntries[row], false));
}

void ModuleDKSTab::showTips()
{
    struct Point
    {
        QLabel *picture;
        QLabel *travel;
        QString tip;
    };
    for (const Point &point : {Point{ui->labelPress3, ui->labelPress1, tr("按下触发")},
                               Point{ui->labelPress4, ui->labelPress2, tr("按到底部")},
                               Point{ui->labelRelease3, ui->labelRelease1, tr("离开底部")},
                               Point{ui->labelRelease4, ui->labelRelease2, tr("回到顶部")}}) {
        point.picture->setToolTip(point.tip);
        point.picture->setAccessibleName(point.tip);
        point.travel->setToolTip(point.tip);
        point.travel->setAccessibleDescription(point.tip);
    }
}

void ModuleDKSTab::save()
{
    DialogDeviceConnect *connection = connectionFor({dksKey});
    if (!connection)
        return;
    {
        const DialogDeviceConnect::WriteGroup group(*connection);
        for (quint8 layer = 0; layer < Rows; ++layer)
            connection->DoSetKey(dksKey, dksEntries[layer], layer, layer == Rows - 1);
        connection->DoSetMagnetism(magnettable::Mode, dksKey, KeyMode::DynamicKeystroke, 0);
        // In single precision every travel of the slider comes out whole, 0.7 mm as 140.
        connection->DoSetMagnetism(magnettable::DksTravel, dksKey,
                                   quint32(float(DKSTravel) * StepsPerMillimetre), 0);
        connection->DoSetMagnetism(magnettable::DksActions, dksKey, Actions, 1);
    }
    Q_EMIT onSaved();
}

void ModuleDKSTab::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showTips();
        showRows();
    }
    ModuleAdvancedTab::changeEvent(event);
}
