#include "AppStart.h"

#include "ConsoleCodePage.h"
#include "Look.h"
#include "MainWindow.h"
#include "Siblings.h"

#include <array>
#include <clocale>
#include <QDebug>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLocale>

namespace {

constexpr std::array Fonts{"MiSans-Bold.ttf",   "MiSans-Demibold.ttf", "MiSans-ExtraLight.ttf",
                           "MiSans-Heavy.ttf",  "MiSans-Light.ttf",    "MiSans-Medium.ttf",
                           "MiSans-Normal.ttf", "MiSans-Regular.ttf",  "MiSans-Semibold.ttf",
                           "MiSans-Thin.ttf"};

/// The style that every widget starts from.
const QString ApplicationStyle = look::sheet(QStringLiteral(
    "* { font-family: MiSans,MiSans;}"
    "QLabel { font-size: @body; font-weight: 400 ;}"
    "QLabel:disabled { color: @disabled; }"
    "QLineEdit { border: 1px solid #D0D0D0; background-color: @edit; border-radius: @editRadius;"
    " min-height: 20px; color: black; font-size: @body; padding: 4px 8px;"
    " selection-background-color: @accent; selection-color: white; }"
    "QLineEdit:focus { border-color: @focusLine; }"
    "QLineEdit:disabled { color: @disabled; }"
    "QToolTip { border: 1px solid @controlLine; background-color: white; color: @text;"
    " font-size: @note; padding: 4px 6px; }"));

/// The first of the user's languages that has a translation; with none the texts stay as they are in the
/// source.
void loadTranslator(QTranslator &translator)
{
    const QStringList languages = QLocale::system().uiLanguages();
    qDebug() << languages;
    for (const QString &language : languages) {
        const QString baseName = QStringLiteral("ORBEStudio_") + QLocale(language).name();
        qDebug() << baseName;
        if (translator.load(QStringLiteral(":/i18n/") + baseName)) {
            QCoreApplication::installTranslator(&translator);
            return;
        }
    }
}

void loadQtTranslators(QTranslator &base, QTranslator &qt)
{
    const QString locale = QLocale::system().name();
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    const bool baseFound = base.load(QStringLiteral("qtbase_") + locale, folder);
    const bool qtFound = qt.load(QStringLiteral("qt_") + locale, folder);
    if (!baseFound || !qtFound)
        qDebug() << "Qt's own texts have no whole translation for" << locale;
    QCoreApplication::installTranslator(&base);
    QCoreApplication::installTranslator(&qt);
}

void loadFonts()
{
    // The fonts belong to a sibling driver; without it the system's own serve.
    const QString folder =
        siblingRoot(QCoreApplication::applicationDirPath()) + QStringLiteral("/WsExe/font/");
    for (const char *font : Fonts)
        QFontDatabase::addApplicationFont(folder + QLatin1String(font));
}

int &prepared(int &argc)
{
    // Qt 6 scales for high resolutions by itself; all there is to say is that no factor is rounded.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    std::setlocale(LC_ALL, ".UTF-8");
    return argc;
}

} // namespace

AppStart::AppStart(int &argc, char **argv)
    : application(prepared(argc), argv)
{
    loadTranslator(appTranslator);
    loadQtTranslators(qtBaseTranslator, qtTranslator);
    platform::useUtf8Console();
    loadFonts();
    application.setStyleSheet(ApplicationStyle);
}

int AppStart::run()
{
    MainWindow window({&appTranslator, &qtBaseTranslator, &qtTranslator});
    if (window.isSecondInstance())
        return 0;
    window.show();
    return QApplication::exec();
}
