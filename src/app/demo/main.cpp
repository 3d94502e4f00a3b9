// The hub on virtual keyboards: the same program with another hidapi behind it.
//
//   OrbeHubDemo [--plug model,model,...] [--tour folder]
//
// --plug   what is plugged in at the start, instead of everything that has a card; the desk window plugs and
//          unplugs while it runs
// --tour   walks through the program by itself, leaves pictures in the folder, and ends

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
    parser.addOptions({plug, tour});
    parser.addHelpOption();
    parser.process(*QCoreApplication::instance());
    const QStringList models = parser.isSet(plug)
                                   ? parser.value(plug).split(QLatin1Char(','), Qt::SkipEmptyParts)
                                   : DemoDesk::modelsWithCard();
    return {models, parser.value(tour)};
}

} // namespace

int main(int argc, char **argv)
{
    AppStart start(argc, argv);
    const Wishes wishes = readArguments();
    virtualhid::VirtualBus::instance().setHotPlugObserver([] { USBNotifier::report(); });
    DemoDesk desk(wishes.plugged);
    DemoTour tour(wishes.tourFolder, &desk);
    if (wishes.tourFolder.isEmpty()) {
        desk.show();
    } else {
        QDir().mkpath(wishes.tourFolder);
        QTimer::singleShot(0, &tour, &DemoTour::start);
    }
    return start.run();
}
