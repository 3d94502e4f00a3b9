#include "DeviceEnumInfo.h"
#include "LanguageSwitcher.h"
#include "ModuleLangMenu.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <tuple>

/// The language menu, and what a choice does: here, at the next start and for the sibling drivers.
class TestLanguage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyLanguageCanBeChosen();
    void choiceIsToldAtOnce();
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

void TestLanguage::everyLanguageCanBeChosen()
{
    // The name in the menu, its tag, code and number for the sibling drivers, and how a key's function is
    // called.
    const std::tuple<const char *, const char *, const char *, int, const char *> expected[] = {
        {" 中文简体", "zh-CN", "cn", 2052, "静音"},        {" English", "en-US", "en", 1033, "Mute"},
        {" 中文繁体", "zh-TW", "tw", 1028, "靜音"},        {" 日本語", "ja-JP", "jp", 1041, "ミュート"},
        {" 한국어", "ko-KR", "kr", 1042, "음소거"},        {" Русский", "ru-RU", "ru", 1049, "Без звука"},
        {" Tiếng Việt", "vi-VN", "vi", 1066, "Tắt tiếng"}, {" Português", "pt-PT", "pt", 1046, "Silenciar"},
        {" ภาษาไทย", "th-TH", "th", 1054, "ปิดเสียง"},       {" Deutsch", "de-DE", "de", 1031, "Stumm"},
        {" Français", "fr-FR", "fr", 1036, "Muet"},        {" Svenska", "sv-SE", "sv", 1053, "Ljud av"},
        {" Italiano", "it-IT", "it", 1040, "Muto"},        {" Türkçe", "tr-TR", "tr", 1055, "Sessiz"},
    };
    ModuleLangMenu menu;
    QTranslator translator;
    LanguageSwitcher languages(*settings);
    connect(&menu, &ModuleLangMenu::onLangChanged, this,
            [&languages, &translator](int id, const QString &text) {
                languages.apply(id, text, {&translator, nullptr, nullptr}, -1);
            });
    for (int index = 0; const auto &[name, tag, code, windowsLanguage, mute] : expected) {
        menu.show();
        menu.selectLanguage(index);
        QVERIFY(menu.isHidden());
        QCOMPARE(languages.languageText(), QString::fromUtf8(name));
        QCOMPARE(languages.localeTag(), QLatin1String(tag));
        QCOMPARE(value("lastlang"), QVariant(index++));
        QCOMPARE(value("LanguageCode").toString(), QLatin1String(code));
        QCOMPARE(value("LANGUAGE").toInt(), windowsLanguage);
        QCOMPARE(translator.translate("ModuleGenKeymapping", "静音"), QString::fromUtf8(mute));
        QVERIFY2(!translator.translate("QLineEdit", "&Undo").isEmpty(), "menus of edit boxes are translated");
    }
    menu.selectLanguage(14); // no such language
    QCOMPARE(value("lastlang"), QVariant(13));
}

void TestLanguage::choiceIsToldAtOnce()
{
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/i18n/ORBEStudio_zh_CN")));
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();
    Listener widget;
    LanguageSwitcher languages(*settings);
    languages.apply(9, QStringLiteral("Deutsch"), {&translator, nullptr, nullptr}, JmFamily);
    QTRY_COMPARE(widget.changes, 1);
    QCOMPARE(QCoreApplication::translate("ModuleGenKeymapping", "静音"), QStringLiteral("Stumm"));
    QVERIFY2(!value("ByLocale").isValid(), "only the BY driver listens");
    languages.apply(11, QStringLiteral("Svenska"), {}, ByFamily);
    languages.apply(14, QStringLiteral("?"), {}, ByFamily); // no such language
    QCOMPARE(value("ByLocale"), QVariant(QStringLiteral("sv-SE")));
}

void TestLanguage::savedLanguage()
{
    const LanguageSwitcher languages(*settings);
    QCOMPARE(languages.savedLanguage(), 0); // first run
    const QHash<QString, int> saved{{QStringLiteral("13"), 13},
                                    {QStringLiteral("14"), 0},
                                    {QStringLiteral("-1"), 0},
                                    {QStringLiteral("de_DE"), 0}};
    for (const auto &[text, index] : saved.asKeyValueRange()) {
        settings->setValue(QStringLiteral("lastlang"), text);
        QCOMPARE(languages.savedLanguage(), index);
    }
}

QTEST_MAIN(TestLanguage)
#include "tst_language.moc"
