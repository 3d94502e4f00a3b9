#include "MacroItem.h"

#include "AccessibleControls.h"
#include "FocusRing.h"
#include "Look.h"
#include "MacroStyle.h"
#include "ModuleMacroManager.h"
#include "ui_MacroItem.h"

#include <QIcon>
#include <QKeyEvent>

namespace {

constexpr int RowRadius = 18;

QIcon rowIcon(const char *picture, bool selected)
{
    return QIcon(QStringLiteral(":/images/macroedit/%1%2.png")
                     .arg(QLatin1String(picture), selected ? QStringLiteral("-on") : QString()));
}

} // namespace

MacroItem::MacroItem(quint8 macroId, const QString &macroName, QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::MacroItem>())
    , id(macroId)
    , name(macroName)
{
    ui->setupUi(this);
    FocusRing::follow(this, RowRadius);
    accessible::setRole(this, QAccessible::ListItem);
    look::setStyleOnce(ui->lineEditName, macrostyle::RowEdit);
    ui->lineEditName->setMaxLength(ModuleMacroManager::LongestName);
    ui->lineEditName->hide();
    ui->lineEditName->installEventFilter(this);
    for (QToolButton *button : {ui->toolButtonRename, ui->toolButtonDelete}) {
        look::setStyleOnce(button, macrostyle::RowButton);
        FocusRing::follow(button, look::PillRadius);
    }
    connect(ui->toolButtonRename, &QToolButton::clicked, this, &MacroItem::beginRename);
    connect(ui->toolButtonDelete, &QToolButton::clicked, this, [this] { Q_EMIT onOperation(Delete, this); });
    setSelected(false);
    showTips();
}

MacroItem::~MacroItem() = default;

void MacroItem::setSelected(bool on)
{
    selected = on;
    accessible::setOn(this, on);
    look::setStyleOnce(this, on ? macrostyle::SelectedRow : macrostyle::Row);
    ui->toolButtonRename->setIcon(rowIcon("rename", on));
    ui->toolButtonDelete->setIcon(rowIcon("delete", on));
    showButtons();
}

QWidget *MacroItem::followInTabOrder(QWidget *before)
{
    for (QWidget *widget : std::initializer_list<QWidget *>{this, ui->lineEditName, ui->toolButtonRename,
                                                            ui->toolButtonDelete}) {
        setTabOrder(before, widget);
        before = widget;
    }
    return before;
}

void MacroItem::showTips()
{
    ui->toolButtonRename->setToolTip(tr("重命名"));
    ui->toolButtonRename->setAccessibleName(tr("重命名"));
    ui->lineEditName->setAccessibleName(tr("重命名"));
    ui->toolButtonDelete->setToolTip(tr("删除"));
    ui->toolButtonDelete->setAccessibleName(tr("删除"));
}

/// The buttons stand on the row that they would act on, and the name has their room on the others.
void MacroItem::showButtons()
{
    const bool isEditing = !ui->lineEditName->isHidden();
    ui->toolButtonRename->setVisible(!isEditing && (selected || underMouse()));
    ui->toolButtonDelete->setVisible(!isEditing && (selected || underMouse()));
    layout()->activate();
    showName();
}

void MacroItem::showName()
{
    const int room = ui->labelName->width();
    ui->labelName->setText(ui->labelName->fontMetrics().elidedText(name, Qt::ElideRight, room));
    setAccessibleName(name);
}

void MacroItem::beginRename()
{
    ui->labelName->hide();
    ui->lineEditName->setText(name);
    ui->lineEditName->show();
    showButtons();
    ui->lineEditName->setFocus();
    ui->lineEditName->selectAll();
}

void MacroItem::endRename(bool take)
{
    if (ui->lineEditName->isHidden())
        return;
    const QString typed = ModuleMacroManager::plainName(ui->lineEditName->text()).trimmed();
    ui->lineEditName->hide();
    ui->labelName->show();
    const bool isNew = take && !typed.isEmpty() && typed != name;
    if (isNew)
        name = typed;
    showButtons();
    if (isNew)
        Q_EMIT onOperation(Rename, this);
}

bool MacroItem::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            endRename(true);
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape) {
            endRename(key != Qt::Key_Escape);
            setFocus();
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void MacroItem::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        showTips();
    QFrame::changeEvent(event);
}

void MacroItem::enterEvent(QEnterEvent *event)
{
    showButtons();
    QFrame::enterEvent(event);
}

void MacroItem::leaveEvent(QEvent *event)
{
    showButtons();
    QFrame::leaveEvent(event);
}

void MacroItem::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    showButtons();
}

void MacroItem::mousePressEvent(QMouseEvent *)
{
    Q_EMIT onOperation(Select, this);
}

void MacroItem::mouseDoubleClickEvent(QMouseEvent *)
{
    beginRename();
}

void MacroItem::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT onOperation(Select, this);
        break;
    case Qt::Key_F2:
        beginRename();
        break;
    case Qt::Key_Delete:
        Q_EMIT onOperation(Delete, this);
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}
