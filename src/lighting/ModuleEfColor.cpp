#include "ModuleEfColor.h"

#include "ColorDelegate.h"
#include "FocusRing.h"
#include "LightStyle.h"
#include "Look.h"
#include "ui_ModuleEfColor.h"

#include <array>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStandardItemModel>

using namespace std::chrono_literals;

namespace {

constexpr std::array SystemColors{
    QColor(0xFF, 0x00, 0x00), QColor(0x00, 0xFF, 0x00), QColor(0x00, 0x00, 0xFF), QColor(0xFF, 0xFF, 0x00),
    QColor(0xFF, 0x00, 0xFF), QColor(0xFF, 0x80, 0x00), QColor(0x00, 0xFF, 0xFF),
};
constexpr int Dots = int(SystemColors.size());
constexpr int DotPointSize = 24;
constexpr int DotHeight = 96;

/// What the swatches hold before the user puts colours of his own there.
constexpr std::array SwatchColors{
    QColor(0xFF, 0x3B, 0x30), QColor(0xFF, 0x95, 0x00), QColor(0xFF, 0xCC, 0x00), QColor(0x34, 0xC7, 0x59),
    QColor(0x00, 0xC7, 0xBE), QColor(0x00, 0x7A, 0xFF), QColor(0x63, 0x29, 0xB6), QColor(0xFF, 0x2D, 0x92),
};

constexpr int CustomOption = 8;
constexpr double HueRange = 360.0;
constexpr auto PickDelay = 200ms;

/// How far the dots are turned, in all instances: the place in the list of the colour on the far left.
int rotation = 0;

const QColor &colorOfDot(int column)
{
    return SystemColors.at(size_t((rotation + column) % Dots));
}

} // namespace

ModuleEfColor::ModuleEfColor(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::ModuleEfColor>())
    , dots(new QStandardItemModel(1, Dots, this))
{
    look::setStyleOnce(this, lightstyle::Panel);
    ui->setupUi(this);
    buildDots();
    buildSwatches();
    connectSideLight();
    showNames();
    pickTimer.setInterval(PickDelay);
    pickTimer.setSingleShot(true);
    connect(&pickTimer, &QTimer::timeout, this, &ModuleEfColor::updateSideLight);
}

ModuleEfColor::~ModuleEfColor() = default;

void ModuleEfColor::buildDots()
{
    for (int column = 0; column < Dots; ++column) {
        auto *item = new QStandardItem(QStringLiteral("●"));
        item->setEditable(false);
        QFont font = ui->tableView->font();
        font.setPointSize(DotPointSize);
        item->setFont(font);
        dots->setItem(0, column, item);
    }
    showDots();
    ui->tableView->setModel(dots);
    ui->tableView->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    ui->tableView->verticalHeader()->setMinimumSectionSize(DotHeight);
    ui->tableView->setRowHeight(0, DotHeight);
    ui->tableView->setCurrentIndex(dots->index(0, ColorDelegate::MiddleColumn));
    ui->tab1->installEventFilter(this);
    connect(new ColorDelegate(ui->tableView), &ColorDelegate::onClicked, this, &ModuleEfColor::rotateDots);
}

void ModuleEfColor::rotateDots(int column)
{
    rotation = (rotation + column - ColorDelegate::MiddleColumn + Dots) % Dots;
    showDots();
    ui->tableView->viewport()->update();
    const QColor middle = dots->item(0, ColorDelegate::MiddleColumn)->foreground().color();
    const auto *found = std::find(SystemColors.begin(), SystemColors.end(), middle);
    if (found != SystemColors.end())
        Q_EMIT onSetColor(middle, int(found - SystemColors.begin()));
}

void ModuleEfColor::showDots()
{
    for (int column = 0; column < Dots; ++column)
        dots->item(0, column)->setForeground(colorOfDot(column));
}

void ModuleEfColor::buildSwatches()
{
    const std::array swatches{ui->label_1, ui->label_2, ui->label_3, ui->label_4,
                              ui->label_5, ui->label_6, ui->label_7, ui->label_8};
    for (size_t i = 0; i < swatches.size(); ++i)
        swatches[i]->setColor(SwatchColors[i]);
    ui->labelTitleL1->hide();
    ui->checkBoxSingle->hide();
    connect(ui->colorSlider, &QSlider::valueChanged, ui->colorSquare,
            [square = ui->colorSquare](int value) { square->setHue(value / HueRange); });
    connect(ui->colorSquare, &ColorSquare::colorSelected, this, &ModuleEfColor::takeCustomColor);
}

void ModuleEfColor::takeCustomColor(const QColor &color)
{
    if (ColorLabel *swatch = ColorLabel::selectedOf(ui->label_1->parent()))
        swatch->setColor(color);
    Q_EMIT onSetColor(color, CustomOption);
}

bool ModuleEfColor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->tab1 && event->type() == QEvent::Paint)
        paintStage();
    if (watched == ui->labelPickup) {
        const bool isKey = event->type() == QEvent::KeyPress;
        if (event->type() == QEvent::MouseButtonRelease ||
            (isKey && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space)) {
            openPicker();
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void ModuleEfColor::paintStage() const
{
    const QPixmap picture = look::picture(QStringLiteral(":/images/light/light.png"), this);
    const QSizeF size = picture.deviceIndependentSize();
    QPainter painter(ui->tab1);
    painter.drawPixmap(QRectF(ui->tab1->rect()).center() - QPointF(size.width(), size.height()) / 2, picture);
}

void ModuleEfColor::showNames()
{
    const auto swatches = ui->tab2->findChildren<ColorLabel *>();
    for (qsizetype i = 0; i < swatches.size(); ++i)
        swatches[i]->setAccessibleName(tr("颜色%1").arg(i + 1));
    ui->tableView->setAccessibleName(ui->tabWidget->tabText(0));
    ui->colorSquare->setAccessibleName(ui->tabWidget->tabText(1));
    ui->labelPickup->setAccessibleName(tr("取色器"));
    const std::initializer_list<std::pair<QButtonGroup *, QLabel *>> groups{
        {ui->buttonGroupS, ui->labelSpeed},
        {ui->buttonGroupL, ui->labelBright},
        {ui->buttonGroupC, ui->labelMode},
        {ui->buttonGroupE, ui->labelEffect}};
    for (const auto &[group, title] : groups) {
        for (QAbstractButton *button : group->buttons())
            button->setAccessibleName(title->text() + button->text());
    }
}

void ModuleEfColor::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showNames();
    }
    QFrame::changeEvent(event);
}
