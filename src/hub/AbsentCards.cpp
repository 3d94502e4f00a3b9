#include "AbsentCards.h"

#include "FrameAbsentDevice.h"

#include <QBoxLayout>

AbsentCards::AbsentCards(QBoxLayout *cardLayout, QWidget *cardParent)
    : layout(cardLayout)
    , parent(cardParent)
{
}

void AbsentCards::refresh(const DeviceList &devices)
{
    const QList<AbsentDevice> absent = devicetrouble::absentDevices(devices);
    while (cards.size() < absent.size())
        cards.append(new FrameAbsentDevice(parent));
    for (qsizetype i = 0; i < cards.size(); ++i) {
        FrameAbsentDevice *card = cards.at(i);
        layout->removeWidget(card); // a card that came meanwhile belongs before it
        card->setVisible(i < absent.size());
        if (i >= absent.size())
            continue;
        card->setDevice(absent.at(i));
        layout->addWidget(card);
    }
}
