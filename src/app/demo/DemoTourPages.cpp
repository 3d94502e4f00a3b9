// What the tour shows, in order.

#include "DemoDesk.h"
#include "DemoHands.h"
#include "DemoTour.h"
#include "DialogDeviceConnect.h"
#include "HubWindow.h"
#include "Languages.h"
#include "ModuleLangMenu.h"
#include "PageSights.h"
#include "Siblings.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
#include <QStackedWidget>

namespace {

constexpr int RainbowWave = 4; ///< effect number
constexpr int CardPage = 0;
constexpr int SiblingPage = 1;
constexpr int NativePage = 2;
const int AllDevices = int(DemoDesk::modelsWithCard().size());

/// Without its driver program the device has a card, and no page.
bool siblingIsThere()
{
    const QString root = siblingRoot(QCoreApplication::applicationDirPath());
    return QFile::exists(root + QLatin1String(OrbeSiblings[CloudFamily].program));
}

int pageNumber()
{
    return hubWindow()->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"))->currentIndex();
}

/// How many devices are there, by the hub's own count; cards of those that went may still show.
int devicesThere()
{
    const auto *count = hubWindow()->findChild<QLabel *>(QStringLiteral("labelInfo0"));
    static const QRegularExpression Number(QStringLiteral("\\d+"));
    return Number.match(count->text()).captured().toInt();
}

DialogDeviceConnect *connection()
{
    return DialogDeviceConnect::instance();
}

/// The menu of the tray icon, which no window owns.
QMenu *trayMenu()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *menu = qobject_cast<QMenu *>(window);
        if (menu && !menu->parent() && !menu->actions().isEmpty())
            return menu;
    }
    return nullptr;
}

} // namespace

void DemoTour::planCards()
{
    if (!language.isEmpty())
        planLanguage(language);
    picture(QStringLiteral("splash"));
    waitFor(QStringLiteral("the cards"), [] { return devicesThere() == AllDevices; });
    picture(QStringLiteral("cards"));
    act([this] { desk->setPlugged(QStringLiteral("wired-300"), false); });
    waitFor(QStringLiteral("the card of the pulled keyboard to go"),
            [] { return devicesThere() == AllDevices - 1; });
    picture(QStringLiteral("cards-one-pulled"));
    act([this] { desk->setPlugged(QStringLiteral("wired-300"), true); });
    waitFor(QStringLiteral("its card to come back"), [] { return devicesThere() == AllDevices; });
}

void DemoTour::planLanguage(const QString &locale)
{
    const auto *const row = std::find_if(Languages.begin(), Languages.end(), [&locale](const auto &each) {
        return locale == QLatin1String(each.locale);
    });
    act([this, row, locale] {
        if (row == Languages.end())
            complain(QStringLiteral("The hub has no language ") + locale);
        else
            hubWindow()->findChild<ModuleLangMenu *>()->selectLanguage(int(row - Languages.begin()));
    });
}

/// Comes to its end in the first language of the table.
void DemoTour::planLanguages()
{
    actOn(QStringLiteral("pushButtonLang"));
    picture(QStringLiteral("language-menu"));
    if (!language.isEmpty()) {
        planLanguage(language);
        return;
    }
    for (auto row = Languages.rbegin(); row != Languages.rend(); ++row) {
        const QString locale = QLatin1String(row->locale);
        planLanguage(locale);
        picture(QStringLiteral("cards-") + locale);
    }
}

void DemoTour::planNativeKeyboard()
{
    actOn(QStringLiteral("FrameDeviceShow"));
    waitFor(QStringLiteral("the page of the keyboard"), [] { return pageNumber() == NativePage; });
    waitFor(QStringLiteral("the read sequence to begin"), [] { return connection()->isReadingAll(); });
    picture(QStringLiteral("reading"));
    waitFor(QStringLiteral("its end"), [] { return !connection()->isReadingAll(); });
    // The hub may read once more if something was plugged meanwhile.
    actOn(QStringLiteral("."));
    actOn(QStringLiteral("."));
}

void DemoTour::planPages()
{
    for (const PageSight &sight : PageSights) {
        waitFor(QStringLiteral("the end of a read"), [] { return !connection()->isReadingAll(); });
        act([] { demohands::parkPointer(); });
        const QStringList way = QString::fromLatin1(sight.way).split(u' ');
        for (const QString &word : way)
            actOn(word);
        picture(QString::fromLatin1(sight.picture));
    }
    act([] { connection()->show(); });
    picture(QStringLiteral("console"));
    act([] { connection()->hide(); });
}

void DemoTour::planTray()
{
    act([this] {
        if (QMenu *menu = trayMenu())
            menu->popup(hubWindow()->mapToGlobal(hubWindow()->rect().center()));
        else
            complain(QStringLiteral("The tray has no menu"));
    });
    picture(QStringLiteral("tray-menu"));
    act([] { trayMenu()->close(); });
}

void DemoTour::planOtherDevices()
{
    actOn(QStringLiteral("label8"));
    act([this] { desk->plugOnly({QStringLiteral("bluetooth")}); });
    waitFor(QStringLiteral("the card of the wireless keyboard"), [] { return devicesThere() == 1; });
    actOn(QStringLiteral("FrameDeviceShow"));
    waitFor(QStringLiteral("its page"), [] { return pageNumber() == NativePage; });
    waitFor(QStringLiteral("the read over the air to begin"), [] { return connection()->isReadingAll(); });
    waitFor(QStringLiteral("the end of the read over the air"), [] { return !connection()->isReadingAll(); });
    actOn(QStringLiteral("label1"));
    picture(QStringLiteral("wireless"));
    act([this] { desk->plugOnly({}); });
    waitFor(QStringLiteral("the last keyboard to go"), [] { return pageNumber() == CardPage; });
    actOn(QStringLiteral("."));
    picture(QStringLiteral("no-keyboard"));
    planTrouble();
    act([this] { desk->plugOnly({QStringLiteral("cloud")}); });
    waitFor(QStringLiteral("its card"), [] { return devicesThere() == 1; });
    picture(QStringLiteral("cards-one"));
    if (siblingIsThere())
        planSibling();
    act([this] { desk->plugOnly(DemoDesk::modelsWithCard()); });
    waitFor(QStringLiteral("all the cards"),
            [] { return pageNumber() == CardPage && devicesThere() == AllDevices; });
}

/// Its device is plugged in alone.
void DemoTour::planSibling()
{
    actOn(QStringLiteral("FrameDeviceShow"));
    waitFor(QStringLiteral("the page of the sibling driver"), [] { return pageNumber() == SiblingPage; });
    for (int i = 0; i < 4; ++i)
        actOn(QStringLiteral("."));
    picture(QStringLiteral("sibling"));
    act([this] { desk->plugOnly({}); });
    waitFor(QStringLiteral("the sibling's device to go"), [] { return pageNumber() == CardPage; });
}

/// A keyboard that may not be opened: on its card, and on the page that a press on the card leads to.
void DemoTour::planTrouble()
{
    const QString model = QStringLiteral("wired-300");
    act([this, model] { desk->plugOnly({model}); });
    waitFor(QStringLiteral("the card of a keyboard"), [] { return devicesThere() == 1; });
    act([this, model] { desk->setDenied(model, true); });
    actOn(QStringLiteral("FrameDeviceShow"));
    waitFor(QStringLiteral("the page of that keyboard"), [] { return pageNumber() == NativePage; });
    picture(QStringLiteral("page-denied"));
    actOn(QStringLiteral("label8"));
    actOn(QStringLiteral("pushButtonScan"));
    for (int i = 0; i < 4; ++i)
        actOn(QStringLiteral("."));
    picture(QStringLiteral("cards-denied"));
    act([this, model] { desk->setDenied(model, false); });
}

/// The demo's own windows come alone, so that they cover nothing of the other pictures.
void DemoTour::planBoard()
{
    act([this] {
        hubWindow()->hide();
        connection()->DoSetLedEffect(RainbowWave, 0);
        desk->board()->show();
    });
    picture(QStringLiteral("board"));
    act([this] {
        desk->board()->hide();
        desk->show();
    });
    actOn(QStringLiteral("."));
    picture(QStringLiteral("desk"));
    act([this] {
        desk->hide();
        desk->board()->hide();
        hubWindow()->show();
    });
}

void DemoTour::planEnd()
{
    actOn(QStringLiteral("!pushButtonExit"));
    act([this] {
        auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ended = question;
        if (question)
            question->button(QMessageBox::Yes)->click();
    });
}
