#include "FrameKeySetting.h"

FrameKeySetting::FrameKeySetting(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("FrameKeySetting"));
}

void FrameKeySetting::RefreshPage() {}
