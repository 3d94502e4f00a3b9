#include "KeyTestPage.h"

KeyTestPage::KeyTestPage(QWidget *parent)
    : MagneticPage(parent)
{
}

void KeyTestPage::showSample() {}

void KeyTestPage::takeKeyPress(const QKeyEvent &) {}

void KeyTestPage::takeKeyRelease(const QKeyEvent &) {}
