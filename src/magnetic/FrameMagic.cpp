#include "FrameMagic.h"

#include "DeadZonePage.h"
#include "DialogDeviceConnect.h"
#include "FocusRing.h"
#include "KeyTestPage.h"
#include "Look.h"
#include "MagneticLog.h"
#include "MagneticStyle.h"
#include "StabilityPage.h"
#include "SwitchTypePage.h"
#include "TravelPage.h"
#include "ui_FrameMagic.h"

#include <QButtonGroup>
#include <QKeyEvent>

Q_LOGGING_CATEGORY(lcMagnetic, "orbe.magnetic")

FrameMagic::FrameMagic(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::FrameMagic>())
{
    // Before there are children: setting a style later would restyle each of them.
    look::setStyleOnce(this, magneticstyle::Page);
    ui->setupUi(this);
    DialogDeviceConnect *connection = DialogDeviceConnect::instance();
    buildPages(connection);
    buildNavigation();
    connectKeyboard();
    if (connection)
        connectDevice(connection);
    ui->pushButtonSet0->click();
}

FrameMagic::~FrameMagic() = default;

// Not in the form, which would build the sub-pages outside the stack and restyle them when they move in.
void FrameMagic::buildPages(DialogDeviceConnect *connection)
{
    QStackedWidget *stack = ui->stackedWidget;
    keyTest = new KeyTestPage(stack);
    pages = {new TravelPage(stack), new DeadZonePage(stack), new SwitchTypePage(stack),
             new StabilityPage(stack), keyTest};
    for (qsizetype i = 0; i < pages.size(); ++i) {
        MagneticPage *page = pages.at(i);
        page->setObjectName(QStringLiteral("page%1").arg(i));
        page->attach(ui->frameKeyboard, connection);
        stack->addWidget(page);
    }
}

void FrameMagic::buildNavigation()
{
    auto *group = new QButtonGroup(this);
    int id = 0;
    for (QPushButton *button : {ui->pushButtonSet0, ui->pushButtonSet1, ui->pushButtonSet2,
                                ui->pushButtonSet3, ui->pushButtonSet4}) {
        group->addButton(button, id++);
        FocusRing::follow(button, look::PillRadius);
    }
    connect(group, &QButtonGroup::idClicked, this, &FrameMagic::showPage);
}

void FrameMagic::connectKeyboard()
{
    connect(ui->frameKeyboard, &ModuleKeyboard::onSelect, this, &FrameMagic::showSelection);
    connect(ui->frameKeyboard, &ModuleKeyboard::onKeyClicked, this,
            [this](const QString &, uchar code) { currentPage()->keyClicked(code); });
}

void FrameMagic::connectDevice(const DialogDeviceConnect *connection)
{
    connect(connection, &DialogDeviceConnect::onReadDone, this, [this] {
        ui->pushButtonSet0->click();
        for (MagneticPage *page : std::as_const(pages))
            page->readDone();
    });
    connect(connection, &DialogDeviceConnect::onKeyTest, keyTest, &KeyTestPage::showSample);
}

MagneticPage *FrameMagic::currentPage() const
{
    return pages.at(ui->stackedWidget->currentIndex());
}

void FrameMagic::showPage(int index)
{
    MagneticPage *next = pages.at(index);
    if (next != currentPage())
        currentPage()->leavePage();
    ui->stackedWidget->setCurrentIndex(index);
    ui->frameKeyboard->selectAll(false);
    ui->frameKeyboard->setEnabled(next->usesKeys());
    ui->frameKeyboard->resetModes();
    next->enterPage();
}

void FrameMagic::showSelection()
{
    QByteArray codes;
    const int count = ui->frameKeyboard->selectedCodes(codes);
    const QString text = tr("已选中按键的数量") + QStringLiteral(": %1").arg(count);
    for (MagneticPage *page : std::as_const(pages))
        page->showSelection(text);
}

void FrameMagic::keyPressEvent(QKeyEvent *event)
{
    keyTest->takeKeyPress(*event);
    QFrame::keyPressEvent(event);
}

void FrameMagic::keyReleaseEvent(QKeyEvent *event)
{
    keyTest->takeKeyRelease(*event);
    QFrame::keyReleaseEvent(event);
}

void FrameMagic::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showSelection();
    }
    QFrame::changeEvent(event);
}
