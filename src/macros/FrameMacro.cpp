#include "FrameMacro.h"

FrameMacro::FrameMacro(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("FrameMacro"));
}
