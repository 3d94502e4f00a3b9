#include "SingleInstance.h"

#include <cstdio>
#include <QCoreApplication>
#include <thread>

// One start of a program that is to run once. Says "first" and, whenever another start calls it, "summoned";
// or says "second" and ends. The first one ends with its input.
int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const auto say = [](const char *line) {
        std::puts(line);
        std::fflush(stdout);
    };
    platform::SingleInstance instance(QString::fromLocal8Bit(argv[1]));
    QObject::connect(&instance, &platform::SingleInstance::summoned, &application,
                     [say] { say("summoned"); });
    const bool first = instance.acquire();
    say(first ? "first" : "second");
    if (!first)
        return 0;
    std::thread([] {
        while (std::getchar() != EOF) {
        }
        QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::Quit));
    }).detach();
    return QCoreApplication::exec();
}
