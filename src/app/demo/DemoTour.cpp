#include "DemoTour.h"

#include "DemoDesk.h"
#include "DialogDeviceConnect.h"
#include "FrameDeviceShow.h"
#include "HubWindow.h"
#include "Languages.h"
#include "ModuleLangMenu.h"

#include <QApplication>
#include <QDebug>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

constexpr auto StepPause = 400ms;
constexpr auto PollPeriod = 50ms;
constexpr std::chrono::milliseconds Patience = 30s;
constexpr int RainbowWave = 4; ///< effect number
const qsizetype AllCards = DemoDesk::modelsWithCard().size();

template <typename Widget>
Widget *inHub(const char *name)
{
    return hubWindow()->findChild<Widget *>(QLatin1String(name));
}

qsizetype visibleCards()
{
    const auto cards = hubWindow()->findChildren<FrameDeviceShow *>();
    return std::count_if(cards.begin(), cards.end(), [](const auto *card) { return card->isVisible(); });
}

void pressCard(int index)
{
    QWidget *card = FrameDeviceShow::acquire(index, nullptr);
    const QPointF at(card->width() / 2.0, card->height() / 2.0);
    QMouseEvent press(QEvent::MouseButtonPress, at, card->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      {});
    QApplication::sendEvent(card, &press);
}

} // namespace

DemoTour::DemoTour(const QString &pictureFolder, const QString &onlyLanguage, DemoDesk *demoDesk,
                   QObject *parent)
    : QObject(parent)
    , folder(pictureFolder)
    , language(onlyLanguage)
    , desk(demoDesk)
{
}

void DemoTour::start()
{
    picture(QStringLiteral("splash"));
    planCards();
    planLanguages();
    planNativeKeyboard();
    planBoard();
    act([] { QCoreApplication::exit(0); });
    next();
}

void DemoTour::next()
{
    if (!steps.isEmpty())
        steps.dequeue()();
}

void DemoTour::act(std::function<void()> action)
{
    steps.enqueue([this, action = std::move(action)] {
        QTimer::singleShot(StepPause, this, [this, action] {
            action();
            next();
        });
    });
}

void DemoTour::waitFor(const QString &what, Condition condition)
{
    steps.enqueue([this, what, condition = std::move(condition)] {
        auto *poll = new QTimer(this);
        QElapsedTimer waiting;
        waiting.start();
        connect(poll, &QTimer::timeout, this, [this, poll, what, condition, waiting] {
            if (condition()) {
                poll->deleteLater();
                next();
            } else if (waiting.hasExpired(Patience.count())) {
                qCritical().noquote() << "The tour waited in vain for" << what;
                poll->deleteLater();
                QCoreApplication::exit(1);
            }
        });
        poll->start(PollPeriod);
    });
}

void DemoTour::picture(const QString &name)
{
    act([this, name] {
        const QPixmap shot = hubWindow()->screen()->grabWindow(0);
        if (!shot.save(folder + QLatin1Char('/') + name + QStringLiteral(".png")))
            qCritical().noquote() << "Can't write the picture" << name;
    });
}

void DemoTour::planCards()
{
    waitFor(QStringLiteral("the cards"), [] { return visibleCards() == AllCards; });
    picture(QStringLiteral("cards"));
    act([this] { desk->setPlugged(QStringLiteral("wired-300"), false); });
    waitFor(QStringLiteral("the card of the pulled keyboard to go"),
            [] { return visibleCards() == AllCards - 1; });
    picture(QStringLiteral("cards-one-pulled"));
    act([this] { desk->setPlugged(QStringLiteral("wired-300"), true); });
    waitFor(QStringLiteral("its card to come back"), [] { return visibleCards() == AllCards; });
}

void DemoTour::planLanguages()
{
    act([] { inHub<QPushButton>("pushButtonLang")->click(); });
    picture(QStringLiteral("language-menu"));
    for (int i = int(Languages.size()) - 1; i >= 0; --i) {
        if (!language.isEmpty() && language != QLatin1String(Languages[size_t(i)].locale))
            continue;
        act([i] { hubWindow()->findChild<ModuleLangMenu *>()->selectLanguage(i); });
        picture(QStringLiteral("cards-") + QLatin1String(Languages[size_t(i)].locale));
    }
}

void DemoTour::planNativeKeyboard()
{
    act([] { pressCard(0); });
    waitFor(QStringLiteral("the page of the keyboard"),
            [] { return inHub<QStackedWidget>("stackedWidget")->currentIndex() == 2; });
    waitFor(QStringLiteral("the read sequence to begin"),
            [] { return DialogDeviceConnect::instance()->isReadingAll(); });
    waitFor(QStringLiteral("its end"), [] { return !DialogDeviceConnect::instance()->isReadingAll(); });
    picture(QStringLiteral("device"));
    planPages();
    act([] { DialogDeviceConnect::instance()->show(); });
    picture(QStringLiteral("console"));
    act([] { DialogDeviceConnect::instance()->hide(); });
}

/// The board comes last and alone, so that it covers nothing of the other pictures.
void DemoTour::planBoard()
{
    act([this] {
        hubWindow()->hide();
        DialogDeviceConnect::instance()->DoSetLedEffect(RainbowWave, 0);
        desk->board()->show();
    });
    picture(QStringLiteral("board"));
    act([this] { desk->board()->hide(); });
}
