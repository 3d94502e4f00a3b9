#include "DeviceEnumInfo.h"
#include "Languages.h"
#include "LanguageSwitcher.h"
#include "ModuleLangMenu.h"

#include <QAbstractButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

/// The language menu, and what a choice does: here, at the next start and for the sibling drivers.
class TestLanguage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void menuOpensUnderItsButton();
    void everyLanguageCanBeChosen_data();
    void everyLanguageCanBeChosen();
    void everyClickCounts();
    void bySiblingIsToldAtOnce();
    void interfaceFollows();
    void savedLanguage_data();
    void savedLanguage();

private:
    QVariant value(const char *key) const { return settings->value(QLatin1String(key)); }

    QTemporaryDir folder;
    std::unique_ptr<QSettings> settings;
};

/// Counts the changes of language that reach a widget.
class Listener : public QWidget
{
public:
    int changes = 0;

protected:
    void changeEvent(QEvent *event) override { changes += event->type() == QEvent::LanguageChange; }
};

void TestLanguage::init()
{
    settings = std::make_unique<QSettings>(folder.filePath(QStringLiteral("hub.ini")), QSettings::IniFormat);
    settings->clear();
}

void TestLanguage::menuOpensUnderItsButton()
{
    ModuleLangMenu menu;
    menu.openBelow({200, 60});
    QVERIFY(menu.isVisible());
    QCOMPARE(menu.pos(), QPoint(210, 60));
    QCOMPARE(menu.width(), 110);
    const auto buttons = menu.findChildren<QAbstractButton *>();
    QCOMPARE(buttons.size(), qsizetype(Languages.size()));
    int bottom = 0;
    for (const QAbstractButton *button : buttons) {
        QCOMPARE(button->size(), QSize(90, 24));
        QVERIFY2(menu.rect().contains(button->geometry()), qPrintable(button->text()));
        QVERIFY2(button->y() >= bottom, "one above the other");
        bottom = button->geometry().bottom();
    }
    menu.openBelow({0, 0});
    QCOMPARE(menu.pos(), QPoint(210, 60));
}

void TestLanguage::everyLanguageCanBeChosen_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("windowsLanguage");
    QTest::addColumn<QString>("mute"); // what a key's function is called in it
    const auto row = [](int index, const char *name, const char *tag, const char *code, int windows,
                        const char *mute) {
        QTest::newRow(tag) << index << QString::fromUtf8(name) << QString::fromUtf8(tag)
                           << QString::fromUtf8(code) << windows << QString::fromUtf8(mute);
    };
    row(0, "中文简体", "zh-CN", "cn", 2052, "静音");
    row(1, "English", "en-US", "en", 1033, "Mute");
    row(2, "中文繁体", "zh-TW", "tw", 1028, "靜音");
    row(3, "日本語", "ja-JP", "jp", 1041, "ミュート");
    row(4, "한국어", "ko-KR", "kr", 1042, "음소거");
    row(5, "Русский", "ru-RU", "ru", 1049, "Без звука");
    row(6, "Tiếng Việt", "vi-VN", "vi", 1066, "Tắt tiếng");
    row(7, "Português", "pt-PT", "pt", 1046, "Silenciar");
    row(8, "ภาษาไทย", "th-TH", "th", 1054, "ปิดเสียง");
    row(9, "Deutsch", "de-DE", "de", 1031, "Stumm");
    row(10, "Français", "fr-FR", "fr", 1036, "Muet");
    row(11, "Svenska", "sv-SE", "sv", 1053, "Ljud av");
    row(12, "Italiano", "it-IT", "it", 1040, "Muto");
    row(13, "Türkçe", "tr-TR", "tr", 1055, "Sessiz");
}

void TestLanguage::everyLanguageCanBeChosen()
{
    QFETCH(int, index);
    QFETCH(QString, name);
    ModuleLangMenu menu;
    QTranslator translator;
    LanguageSwitcher languages(*settings);
    connect(&menu, &ModuleLangMenu::onLangChanged, this,
            [&languages, &translator](int id, const QString &text) {
                languages.apply(id, text, {&translator, nullptr, nullptr}, -1);
            });
    menu.show();
    menu.selectLanguage(index);

    QVERIFY(menu.isHidden());
    QCOMPARE(languages.languageText(), QStringLiteral(" ") + name);
    QTEST(languages.localeTag(), "tag");
    QCOMPARE(value("lastlang"), QVariant(index));
    QTEST(value("LanguageCode").toString(), "code");
    QTEST(value("LANGUAGE").toInt(), "windowsLanguage");
    QTEST(translator.translate("ModuleGenKeymapping", "静音"), "mute");
    QVERIFY(!settings->contains(QStringLiteral("ByLocale")));
    QVERIFY2(!translator.translate("QPlatformTheme", "&Yes").isEmpty(), "message boxes are translated, too");
}

void TestLanguage::everyClickCounts()
{
    ModuleLangMenu menu;
    QSignalSpy chosen(&menu, &ModuleLangMenu::onLangChanged);
    menu.selectLanguage(9);
    menu.selectLanguage(9);
    QCOMPARE(chosen.size(), 2);
    QCOMPARE(chosen.at(1), (QList<QVariant>{9, QStringLiteral("Deutsch")}));
    menu.selectLanguage(14);
    QCOMPARE(chosen.size(), 2);
}

void TestLanguage::bySiblingIsToldAtOnce()
{
    LanguageSwitcher languages(*settings);
    languages.apply(9, QStringLiteral("Deutsch"), {}, JmFamily);
    QVERIFY(!value("ByLocale").isValid());
    languages.apply(11, QStringLiteral("Svenska"), {}, ByFamily);
    QCOMPARE(value("ByLocale"), QVariant(QStringLiteral("sv-SE")));
    languages.apply(14, QStringLiteral("?"), {}, ByFamily); // no such language
    QCOMPARE(value("lastlang"), QVariant(11));
}

void TestLanguage::interfaceFollows()
{
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/i18n/ORBEStudio_zh_CN")));
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();
    Listener widget;
    LanguageSwitcher(*settings).apply(9, QStringLiteral("Deutsch"), {&translator, nullptr, nullptr}, -1);
    QTRY_COMPARE(widget.changes, 1);
    QCOMPARE(QCoreApplication::translate("ModuleGenKeymapping", "静音"), QStringLiteral("Stumm"));
}

void TestLanguage::savedLanguage_data()
{
    QTest::addColumn<QVariant>("saved");
    QTest::addColumn<int>("index");
    QTest::newRow("first run") << QVariant() << 0;
    QTest::newRow("a language") << QVariant(13) << 13;
    QTest::newRow("as text") << QVariant(QStringLiteral("5")) << 5;
    QTest::newRow("past the table") << QVariant(14) << 0;
    QTest::newRow("negative") << QVariant(-1) << 0;
    QTest::newRow("no number") << QVariant(QStringLiteral("de_DE")) << 0;
}

void TestLanguage::savedLanguage()
{
    QFETCH(QVariant, saved);
    if (saved.isValid())
        settings->setValue(QStringLiteral("lastlang"), saved);
    QTEST(LanguageSwitcher(*settings).savedLanguage(), "index");
}

QTEST_MAIN(TestLanguage)
#include "tst_language.moc"
