#include "FrameMagic.h"

FrameMagic::FrameMagic(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("FrameMagic"));
}
