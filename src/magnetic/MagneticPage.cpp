#include "MagneticPage.h"

#include "DialogDeviceConnect.h"
#include "KeyboardButton.h"
#include "KeyMatrix.h"
#include "MagneticLog.h"
#include "Travel.h"

MagneticPage::MagneticPage(QWidget *parent)
    : QWidget(parent)
{
}

void MagneticPage::attach(ModuleKeyboard *board, DialogDeviceConnect *link)
{
    keyboard = board;
    connection = link;
}

void MagneticPage::enterPage()
{
    keyboard->enterValueMode(KeyboardButton::Plain);
    keyboard->setLegendVisible(false);
}

void MagneticPage::keyClicked(quint8) {}

void MagneticPage::showSelection(const QString &) {}

bool MagneticPage::canWrite(quint8 code)
{
    const bool can = keys::PositionOfCode(code) != keys::NoPosition;
    if (!can)
        qCWarning(lcMagnetic) << "key" << code << "has no place in the tables and isn't set";
    return can;
}

QByteArray MagneticPage::selectedKeys() const
{
    QByteArray codes;
    keyboard->selectedCodes(codes);
    codes.removeIf([](char code) { return !canWrite(quint8(code)); });
    return codes;
}

float MagneticPage::cachedMillimetres(quint8 table, quint8 position) const
{
    return connection ? travel::fromRaw(connection->GetMagnetism(table, position)) : 0.0F;
}
