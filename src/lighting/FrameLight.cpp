#include "FrameLight.h"

FrameLight::FrameLight(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("FrameLight"));
}
