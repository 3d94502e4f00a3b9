#include "ModuleAddMacroSquare.h"

#include "FocusRing.h"
#include "Look.h"
#include "MacroKeys.h"
#include "MacroStyle.h"
#include "ModuleGeneralMasker.h"
#include "ui_ModuleAddMacroSquare.h"

#include <QKeyEvent>

namespace {

constexpr int TickRadius = 10;
constexpr int KeysOfNavigation[] = {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter,
                                    Qt::Key_Escape};

} // namespace

ModuleAddMacroSquare::ModuleAddMacroSquare()
    : ui(std::make_unique<Ui::ModuleAddMacroSquare>())
{
    ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    look::setStyleOnce(this, macrostyle::Card);
    look::setStyleOnce(ui->pushButtonOK, macrostyle::AccentButton);
    look::setStyleOnce(ui->pushButtonCancel, macrostyle::PlainButton);
    for (QWidget *control : std::initializer_list<QWidget *>{ui->pushButtonOK, ui->pushButtonCancel})
        FocusRing::follow(control, look::PillRadius);
    for (QWidget *control :
         std::initializer_list<QWidget *>{ui->radioButtonKey, ui->radioButtonMouse, ui->radioButtonPosition,
                                          ui->checkBox1, ui->checkBox2, ui->checkBox3})
        FocusRing::follow(control, TickRadius);
    for (QSpinBox *box : {ui->spinBoxX, ui->spinBoxY}) {
        look::setStyleOnce(box, macrostyle::NumberBox);
        FocusRing::follow(box, look::EditRadius);
    }
    FocusRing::follow(ui->lineEditKey, look::EditRadius);
    ui->lineEditKey->installEventFilter(this);
    ui->lineEditKey->setAccessibleName(ui->radioButtonKey->text());
    for (QRadioButton *choice : {ui->radioButtonKey, ui->radioButtonMouse, ui->radioButtonPosition})
        connect(choice, &QRadioButton::toggled, this, &ModuleAddMacroSquare::showChoice);
    connect(ui->pushButtonOK, &QPushButton::clicked, this, [this] { end(true); });
    connect(ui->pushButtonCancel, &QPushButton::clicked, this, [this] { end(false); });
}

ModuleAddMacroSquare::~ModuleAddMacroSquare() = default;

bool ModuleAddMacroSquare::exec(QWidget *page)
{
    reset();
    ModuleGeneralMasker mask(this, page);
    ui->pushButtonOK->setDefault(false); // a mask learns of its default button by the change alone
    ui->pushButtonOK->setDefault(true);
    ui->lineEditKey->setFocus();
    mask.exec();
    return isAccepted;
}

void ModuleAddMacroSquare::end(bool accepted)
{
    isAccepted = accepted;
    hide(); // which ends the mask
}

void ModuleAddMacroSquare::reset()
{
    isAccepted = false;
    setKey(0);
    ui->radioButtonKey->setChecked(true);
    for (QCheckBox *box : {ui->checkBox1, ui->checkBox2, ui->checkBox3})
        box->setChecked(false);
    ui->spinBoxX->setValue(0);
    ui->spinBoxY->setValue(0);
    showChoice();
}

void ModuleAddMacroSquare::showChoice()
{
    ui->lineEditKey->setEnabled(ui->radioButtonKey->isChecked());
    ui->frameButtons->setEnabled(ui->radioButtonMouse->isChecked());
    ui->framePosition->setEnabled(ui->radioButtonPosition->isChecked());
}

void ModuleAddMacroSquare::setKey(quint8 code)
{
    keyCode = code;
    ui->lineEditKey->setText(macrokeys::nameOf(code));
}

QList<MacroEvent> ModuleAddMacroSquare::steps() const
{
    QList<MacroEvent> result;
    const auto addClick = [&result](quint8 type, quint16 value, const QString &text) {
        result.append({type, true, value, text});
        result.append({type, false, value, text});
    };
    if (ui->radioButtonKey->isChecked() && keyCode != 0)
        addClick(MacroType::Key, keyCode, macrokeys::nameOf(keyCode));
    if (ui->radioButtonMouse->isChecked()) {
        const std::pair<const QCheckBox *, int> boxes[] = {{ui->checkBox1, Qt::LeftButton},
                                                           {ui->checkBox2, Qt::MiddleButton},
                                                           {ui->checkBox3, Qt::RightButton}};
        for (const auto &[box, button] : boxes) {
            if (box->isChecked())
                addClick(MacroType::Button, quint16(button), {});
        }
    }
    if (ui->radioButtonPosition->isChecked()) {
        const auto value = quint16(256 * ui->spinBoxX->value() + ui->spinBoxY->value());
        result.append({MacroType::Position, false, value, {}});
    }
    return result;
}

// Any key can be chosen; once one is, those that lead through the dialog do that again.
bool ModuleAddMacroSquare::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != ui->lineEditKey)
        return QFrame::eventFilter(watched, event);
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    const auto &key = *static_cast<QKeyEvent *>(event);
    if (keyCode != 0 && std::ranges::count(KeysOfNavigation, key.key()) > 0)
        return false;
    if (const quint8 code = macrokeys::codeOf(key); code != 0 && !key.isAutoRepeat())
        setKey(code);
    return true;
}

void ModuleAddMacroSquare::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    ui->lineEditKey->ensurePolished(); // which takes the colour from the style sheet
    QPalette hint = ui->lineEditKey->palette();
    hint.setColor(QPalette::PlaceholderText, look::Placeholder);
    ui->lineEditKey->setPalette(hint);
}

void ModuleAddMacroSquare::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        ui->lineEditKey->setAccessibleName(ui->radioButtonKey->text());
    }
    QFrame::changeEvent(event);
}
