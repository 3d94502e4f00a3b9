#include "ModuleLangMenu.h"

#include "FocusRing.h"
#include "Languages.h"
#include "Look.h"
#include "ui_ModuleLangMenu.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

namespace {

constexpr QSize ButtonSize(90, 24);
constexpr QSize MenuSize(110, 280);
constexpr int ShiftFromButton = 10;

/// The names, translated once: a language is called the same whatever the interface speaks.
const QStringList &languageNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (const Language &language : Languages)
            list += ModuleLangMenu::tr(language.sourceName);
        return list;
    }();
    return names;
}

} // namespace

ModuleLangMenu::ModuleLangMenu(QWidget *parent)
    : QDialog(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , ui(std::make_unique<Ui::ModuleLangMenu>())
    , buttons(new QButtonGroup(this))
{
    ui->setupUi(this);
    setAttribute(Qt::WA_TranslucentBackground);
    for (int index = 0; index < languageNames().size(); ++index) {
        auto *button = new QPushButton(languageNames().at(index), this);
        button->setCheckable(true);
        button->setFixedSize(ButtonSize);
        button->setFocusPolicy(Qt::NoFocus);
        button->setCursor(Qt::PointingHandCursor);
        buttons->addButton(button, index);
        ui->layoutLanguages->addWidget(button, 0, Qt::AlignHCenter);
    }
    connect(buttons, &QButtonGroup::idClicked, this, &ModuleLangMenu::choose);
}

ModuleLangMenu::~ModuleLangMenu() = default;

void ModuleLangMenu::openBelow(const QPoint &bottomLeft)
{
    if (!isHidden())
        return;
    setGeometry({bottomLeft + QPoint(ShiftFromButton, 0), MenuSize});
    marked = qMax(0, buttons->checkedId());
    show();
    activateWindow();
}

void ModuleLangMenu::selectLanguage(int index)
{
    if (QAbstractButton *button = buttons->button(index))
        button->click();
}

void ModuleLangMenu::paintEvent(QPaintEvent *)
{
    look::paintStyledBackground(this);
    if (!isActiveWindow())
        return;
    QPainter painter(this);
    constexpr int Reach = FocusRing::ReachOut;
    const QRect place = buttons->button(marked)->geometry().adjusted(-Reach, -Reach, Reach, Reach);
    look::drawFocusRing(painter, place, look::PillRadius);
}

// The buttons take no focus: the menu itself leads from one to the other.
void ModuleLangMenu::keyPressEvent(QKeyEvent *event)
{
    const int last = int(buttons->buttons().size()) - 1;
    switch (event->key()) {
    case Qt::Key_Up:
        marked = qMax(0, marked - 1);
        break;
    case Qt::Key_Down:
        marked = qMin(last, marked + 1);
        break;
    case Qt::Key_Home:
        marked = 0;
        break;
    case Qt::Key_End:
        marked = last;
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        selectLanguage(marked);
        break;
    default:
        QDialog::keyPressEvent(event);
        return;
    }
    update();
}

void ModuleLangMenu::choose(int index)
{
    hide();
    Q_EMIT onLangChanged(index, languageNames().at(index));
}
