#include "HubOnScreen.h"

#include "DialogDeviceConnect.h"
#include "FrameDeviceShow.h"
#include "SuperLabel.h"

#include <memory>
#include <QAbstractButton>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QElapsedTimer>
#include <QScreen>
#include <QTest>
#include <QTimer>

namespace hub {

namespace {

QList<FrameDeviceShow *> shownCards()
{
    QList<FrameDeviceShow *> cards = window()->findChildren<FrameDeviceShow *>();
    cards.removeIf([](const FrameDeviceShow *card) { return card->isHidden(); });
    return cards;
}

} // namespace

QMainWindow *window()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *mainWindow = qobject_cast<QMainWindow *>(widget))
            return mainWindow;
    }
    return nullptr;
}

int cards()
{
    return int(shownCards().size());
}

FrameDeviceShow *onlyCard()
{
    const auto cards = shownCards();
    return cards.size() == 1 ? cards.constFirst() : nullptr;
}

bool settle(int limitMs)
{
    constexpr int Quiet = 2500; // longer than anything that leads to another read
    const QDeadlineTimer limit(limitMs);
    QElapsedTimer quiet;
    quiet.start();
    while (quiet.elapsed() < Quiet && !limit.hasExpired()) {
        QTest::qWait(50);
        if (DialogDeviceConnect::instance()->isReadingAll())
            quiet.restart();
    }
    return quiet.elapsed() >= Quiet;
}

void click(const char *button)
{
    const auto candidates = window()->findChildren<QAbstractButton *>(QLatin1String(button));
    for (QAbstractButton *candidate : candidates) {
        if (candidate->isVisible())
            return candidate->click();
    }
    QFAIL(qPrintable(QStringLiteral("no button %1 is to be seen").arg(QLatin1String(button))));
}

void openPage(const char *label)
{
    find<SuperLabel>(label)->press();
}

bool inDialog(const std::function<void()> &open, const std::function<void(QWidget &dialog)> &steps)
{
    const auto came = std::make_shared<bool>(false);
    const QWidget *before = QApplication::activeModalWidget();
    QTimer::singleShot(0, window(), [came, before, steps] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        *came = dialog && dialog != before;
        if (!*came)
            return;
        steps(*dialog);
        if (dialog->isVisible()) // a step has failed, or none was to leave it
            dialog->reject();
    });
    open();
    QCoreApplication::processEvents();
    return *came;
}

bool picture(const QString &name)
{
    QTest::qWait(300); // for what is being painted
    return window()->screen()->grabWindow(0).save(name + QStringLiteral(".png"));
}

} // namespace hub
