#include "AppStart.h"

#include "MainWindow.h"

#include <array>
#include <clocale>
#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

constexpr std::array Fonts{"MiSans-Bold.ttf",   "MiSans-Demibold.ttf", "MiSans-ExtraLight.ttf",
                           "MiSans-Heavy.ttf",  "MiSans-Light.ttf",    "MiSans-Medium.ttf",
                           "MiSans-Normal.ttf", "MiSans-Regular.ttf",  "MiSans-Semibold.ttf",
                           "MiSans-Thin.ttf"};

/// The style that every widget starts from.
const QString ApplicationStyle =
    QStringLiteral("* { font-family: MiSans,MiSans;}"
                   "QLabel { font-size: 14px; font-weight: 400 ;}"
                   "QLabel:disabled { color: #B3B3B3; }"
                   "QLineEdit { border: 1px solid #D0D0D0; background-color: #EDEDED; border-radius: 6px;"
                   " min-height: 20px; color: black; font-size: 14px; padding: 4px 8px;"
                   " selection-background-color: #6329B6; selection-color: white; }"
                   "QLineEdit:focus { border-color: #A17FD3; }"
                   "QLineEdit:disabled { color: #B3B3B3; }");

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

/// The folder that the sibling drivers lie in: beside the program, or one level up.
QString siblingRoot()
{
    QString root = QCoreApplication::applicationDirPath();
    if (!QDir(root + QStringLiteral("/RyExe")).exists())
        root += QStringLiteral("/..");
    return root;
}

void loadFonts()
{
    const QString folder = siblingRoot() + QStringLiteral("/WsExe/font/");
    for (const char *font : Fonts)
        QFontDatabase::addApplicationFont(folder + QLatin1String(font));
}

} // namespace

int runHub(int argc, char **argv, const std::function<void()> &beforeWindow)
{
    // Qt 6 scales for high resolutions by itself; all there is to say is that no factor is rounded.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    std::setlocale(LC_ALL, ".UTF-8");
    QApplication application(argc, argv);

    QTranslator appTranslator;
    loadTranslator(appTranslator);
    QTranslator qtBaseTranslator;
    QTranslator qtTranslator;
    loadQtTranslators(qtBaseTranslator, qtTranslator);
    loadFonts();
    application.setStyleSheet(ApplicationStyle);
    if (beforeWindow)
        beforeWindow();

    MainWindow window;
    window.show();
    return QApplication::exec();
}
