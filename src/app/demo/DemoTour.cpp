#include "DemoTour.h"

#include "DemoDesk.h"
#include "DemoHands.h"
#include "HubWindow.h"

#include <QApplication>
#include <QDebug>
#include <QElapsedTimer>
#include <QScreen>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

constexpr auto WordPause = 150ms;
constexpr auto PicturePause = 400ms; ///< what was done last has settled on the screen by then
constexpr auto LongPause = 700ms;
constexpr auto PollPeriod = 50ms;
constexpr std::chrono::milliseconds Patience = 30s;
constexpr std::chrono::milliseconds DialogPatience = 5s;

/// Whether it lies in a small window that Windows closes once another one comes to the front.
bool isFleeting(const QString &word)
{
    return QGuiApplication::platformName() == QLatin1String("windows") &&
           (word.startsWith(QLatin1String("DialogColorPicker")) ||
            word.startsWith(QLatin1String("CustomTooltip")) || word.startsWith(QLatin1String("lineEdit")));
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
    QApplication::setCursorFlashTime(0); // a caret that blinks is in some pictures and not in others
    demohands::parkPointer();
    planCards();
    planLanguages();
    planNativeKeyboard();
    planPages();
    planTray();
    planOtherDevices();
    planBoard();
    planEnd();
    next();
}

int DemoTour::outcome(int code) const
{
    if (folder.isEmpty())
        return code;
    if (ended)
        qInfo("The tour took %d pictures", pictures);
    return ended && !faulty ? code : 1;
}

void DemoTour::complain(const QString &fault)
{
    faulty = true;
    qCritical().noquote() << fault;
}

void DemoTour::next()
{
    if (!steps.isEmpty())
        steps.dequeue()();
}

void DemoTour::act(std::function<void()> action)
{
    steps.enqueue([this, action = std::move(action)] {
        QTimer::singleShot(WordPause, this, [this, action] {
            action();
            next();
        });
    });
}

void DemoTour::actOn(const QString &word)
{
    if (word == QLatin1String(".")) {
        steps.enqueue([this] { QTimer::singleShot(LongPause, this, &DemoTour::next); });
        return;
    }
    // A dialog holds up whoever opens it, so that is left to a turn of its own.
    if (word.startsWith(u'!')) {
        act([this, word] {
            QTimer::singleShot(0, this, [this, word] {
                if (!demohands::carryOut(word.mid(1), *desk))
                    complain(QStringLiteral("The tour doesn't find ") + word.mid(1));
            });
        });
        return;
    }
    // What an earlier step opens may take its time to show.
    steps.enqueue([this, word] {
        QTimer::singleShot(WordPause, this, [this, word] { tryOn(word, QDeadlineTimer(DialogPatience)); });
    });
}

void DemoTour::tryOn(const QString &word, QDeadlineTimer limit)
{
    const bool done = demohands::carryOut(word, *desk);
    if (!done && !limit.hasExpired()) {
        QTimer::singleShot(PollPeriod, this, [this, word, limit] { tryOn(word, limit); });
        return;
    }
    const QString missing = QStringLiteral("The tour doesn't find ") + word;
    if (!done && isFleeting(word))
        qWarning().noquote() << missing;
    else if (!done)
        complain(missing);
    next();
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
                complain(QStringLiteral("The tour waited in vain for ") + what);
                poll->deleteLater();
                QCoreApplication::exit(1);
            }
        });
        poll->start(PollPeriod);
    });
}

void DemoTour::picture(const QString &name)
{
    steps.enqueue([this, name] {
        QTimer::singleShot(PicturePause, this, [this, name] {
            const QRect place = demohands::whatShows();
            const QPixmap shot =
                hubWindow()->screen()->grabWindow(0, place.x(), place.y(), place.width(), place.height());
            if (shot.save(folder + QLatin1Char('/') + name + QStringLiteral(".png")))
                ++pictures;
            else
                complain(QStringLiteral("The tour can't write the picture ") + name);
            next();
        });
    });
}
