// The hub on virtual keyboards: the same program with another hidapi behind it.
//
//   OrbeHubDemo [--plug model,model,...] [--tour folder [--language locale]]
//
// --plug   what is plugged in at the start, instead of everything that has a card; the desk window plugs and
//          unplugs while it runs
// --tour   walks through the program by itself, leaves pictures in the folder, and ends
// --language   has the tour show only this language, such as de_DE, instead of all on the cards and Chinese
// after

#include "AppStart.h"
#include "DemoDesk.h"
#include "DemoTour.h"
#include "USBNotifier.h"

#include <QCommandLineParser>
#include <QDir>
#include <QTimer>

namespace {

struct Wishes
{
    QStringList plugged;
    QString tourFolder;
    QString tourLanguage;
};

Wishes readArguments()
{
    const QCommandLineOption plug(QStringLiteral("plug"),
                                  QStringLiteral("Models to plug in at the start: %1")
                                      .arg(DemoDesk::modelNames().join(QStringLiteral(", "))),
                                  QStringLiteral("models"));
    const QCommandLineOption tour(QStringLiteral("tour"),
                                  QStringLiteral("Leave pictures of everything and end."),
                                  QStringLiteral("folder"));
    QCommandLineParser parser;
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("The only language of the tour."),
                                      QStringLiteral("locale"));
    parser.addOptions({plug, tour, language});
    parser.addHelpOption();
    parser.process(*QCoreApplication::instance());
    const QStringList models = parser.isSet(plug)
                                   ? parser.value(plug).split(QLatin1Char(','), Qt::SkipEmptyParts)
                                   : DemoDesk::modelsWithCard();
    return {models, parser.value(tour), parser.value(language)};
}

} // namespace

int main(int argc, char **argv)
{
    AppStart start(argc, argv);
    const Wishes wishes = readArguments();
    virtualhid::VirtualBus::instance().setHotPlugObserver([] { USBNotifier::report(); });
    DemoDesk desk(wishes.plugged);
    DemoTour tour(wishes.tourFolder, wishes.tourLanguage, &desk);
    if (wishes.tourFolder.isEmpty()) {
        desk.show();
    } else {
        QDir().mkpath(wishes.tourFolder);
        QTimer::singleShot(0, &tour, &DemoTour::start);
    }
    return tour.outcome(start.run());
}
