#include "DeadZonePage.h"

#include "DialogDeviceConnect.h"
#include "FocusRing.h"
#include "KeyboardButton.h"
#include "KeyMatrix.h"
#include "Look.h"
#include "Travel.h"
#include "ui_DeadZonePage.h"

#include <QEvent>

DeadZonePage::DeadZonePage(QWidget *parent)
    : MagneticPage(parent)
    , ui(std::make_unique<Ui::DeadZonePage>())
{
    ui->setupUi(this);
    showTitles();
    FocusRing::follow(ui->pushButtonSetDeathzone, look::PillRadius);
    connect(ui->pushButtonSetDeathzone, &QPushButton::clicked, this, &DeadZonePage::apply);
}

DeadZonePage::~DeadZonePage() = default;

void DeadZonePage::showTitles()
{
    ui->frameDead->setPaneTitles(tr("顶部死区"), tr("底部死区"));
    ui->frameDead->setPaneTips(tr("按键顶部不触发的距离，可防误触"), tr("按键底部不响应的距离，可防抖动"));
}

void DeadZonePage::enterPage()
{
    keyboard->enterValueMode(KeyboardButton::TwoValues);
    for (int i = 0; i < MatrixPositions; ++i) {
        const auto position = quint8(i);
        // The bottom zone stands above the top one here, and below it once the key has been set.
        keyboard->setKeyValues2(keys::CodeOfPosition(position),
                                cachedMillimetres(magnettable::BottomDeadZone, position),
                                cachedMillimetres(magnettable::TopDeadZone, position));
    }
}

void DeadZonePage::showSelection(const QString &text)
{
    ui->labelSelectDZKey->setText(text);
}

void DeadZonePage::apply()
{
    const QByteArray codes = selectedKeys();
    const float top = ui->frameDead->paneValue(true);
    const float bottom = ui->frameDead->paneValue(false);
    for (const char code : codes)
        keyboard->setKeyValues2(quint8(code), top, bottom);
    if (!connection || codes.isEmpty())
        return;
    const DialogDeviceConnect::WriteGroup group(*connection);
    for (qsizetype i = 0; i < codes.size(); ++i) {
        const auto code = quint8(codes.at(i));
        const quint8 commit = i == codes.size() - 1 ? 1 : 0;
        connection->DoSetMagnetism(magnettable::TopDeadZone, code, travel::toRaw(top), 0);
        connection->DoSetMagnetism(magnettable::BottomDeadZone, code, travel::toRaw(bottom), commit);
    }
}

void DeadZonePage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showTitles();
    }
    MagneticPage::changeEvent(event);
}
