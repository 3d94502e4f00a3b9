#pragma once

#include <QApplication>
#include <QTranslator>

/// The process around the main window: scaling, locale, translators, fonts and style, in the order in which
/// they must come. One object, on the entry function's stack, for the whole run.
class AppStart
{
public:
    AppStart(int &argc, char **argv);

    /// Shows the main window and runs until it is left; gives the exit code. A second start of the program
    /// shows no window, brings the first one forward and gives 0.
    int run();

private:
    QApplication application;
    QTranslator appTranslator;
    QTranslator qtBaseTranslator;
    QTranslator qtTranslator;
};
