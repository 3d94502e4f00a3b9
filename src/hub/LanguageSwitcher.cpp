#include "LanguageSwitcher.h"

#include "DeviceEnumInfo.h"
#include "HubLog.h"
#include "Languages.h"
#include "SettingsKeys.h"

#include <QLibraryInfo>
#include <QSettings>
#include <QTranslator>

namespace {

/// Qt's own texts that the program shows, the menus of edit and spin boxes, for languages that Qt comes
/// without. Where Qt has its own text, that one shows.
[[maybe_unused]] constexpr std::array QtTexts{
    QT_TRANSLATE_NOOP("QLineEdit", "&Undo"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Redo"),
    QT_TRANSLATE_NOOP("QLineEdit", "Cu&t"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Copy"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Paste"),
    QT_TRANSLATE_NOOP("QLineEdit", "Delete"),
    QT_TRANSLATE_NOOP("QLineEdit", "Select All"),
    QT_TRANSLATE_NOOP("QAbstractSpinBox", "&Select All"),
    QT_TRANSLATE_NOOP("QAbstractSpinBox", "&Step up"),
    QT_TRANSLATE_NOOP("QAbstractSpinBox", "Step &down"),
};

const Language *languageAt(int index)
{
    return index >= 0 && size_t(index) < Languages.size() ? &Languages[size_t(index)] : nullptr;
}

void load(QTranslator *translator, const QString &file, const QString &folder)
{
    if (translator && !translator->load(file, folder))
        qCDebug(lcHub) << "No translation" << file << "in" << folder;
}

} // namespace

LanguageSwitcher::LanguageSwitcher(QSettings &sharedSettings)
    : settings(sharedSettings)
{
}

int LanguageSwitcher::savedLanguage() const
{
    const int index = settings.value(SettingsKeys::LastLanguage.name).toInt();
    return languageAt(index) ? index : SettingsKeys::LastLanguage.initial;
}

void LanguageSwitcher::apply(int index, const QString &name, const InstalledTranslators &translators,
                             int hostedFamily)
{
    const Language *language = languageAt(index);
    if (!language) {
        qCWarning(lcHub) << "No language" << index;
        return;
    }
    text = QLatin1Char(' ') + name;
    settings.setValue(SettingsKeys::LastLanguage.name, index);

    const QString locale = QLatin1String(language->locale);
    const QString file = locale + QStringLiteral(".qm");
    const QString qtFolder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    load(translators.application, QStringLiteral("ORBEStudio_") + file, QStringLiteral(":/i18n"));
    load(translators.qtBase, QStringLiteral("qtbase_") + file, qtFolder);
    load(translators.qt, QStringLiteral("qt_") + file, qtFolder);

    tag = QString(locale).replace(u'_', u'-');
    if (hostedFamily == ByFamily)
        settings.setValue(SettingsKeys::ByLocale.name, tag);
    settings.setValue(SettingsKeys::LanguageCode.name, QString(QLatin1String(language->code)));
    settings.setValue(SettingsKeys::WindowsLanguage.name, language->windowsLanguage);
}
