#include "StandInWindow.h"

#include <QApplication>
#include <QFileInfo>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    // A hidden window that is the only one doesn't end the program.
    QApplication::setQuitOnLastWindowClosed(false);
    const QFileInfo program(QCoreApplication::applicationFilePath());
    QString name = program.fileName();
    if (name.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive))
        name.chop(4);
    const QSettings orders(program.absolutePath() + QLatin1Char('/') + name + QStringLiteral(".ini"),
                           QSettings::IniFormat);
    StandInWindow window(orders);
    return QApplication::exec();
}
