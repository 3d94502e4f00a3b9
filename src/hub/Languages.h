#pragma once

#include <array>
#include <QCoreApplication>

/// A language of the interface. Its index in the table is the button in the menu and the value that is saved.
struct Language
{
    const char *sourceName; ///< its own name, as the menu shows it; translated in ModuleLangMenu's context
    const char *locale;     ///< names the translation file
    const char *code;       ///< what the siblings know it by
    int windowsLanguage;    ///< language identifier of Windows, also for the siblings
};

inline constexpr std::array Languages{
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "中文简体"), "zh_CN", "cn", 2052},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "English"), "en_US", "en", 1033},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "中文繁体"), "zh_TW", "tw", 1028},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "日本語"), "ja_JP", "jp", 1041},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "한국어"), "ko_KR", "kr", 1042},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "Русский"), "ru_RU", "ru", 1049},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "Tiếng Việt"), "vi_VN", "vi", 1066},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "Português"), "pt_PT", "pt", 1046},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "ภาษาไทย"), "th_TH", "th", 1054},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "Deutsch"), "de_DE", "de", 1031},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "Français"), "fr_FR", "fr", 1036},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "Svenska"), "sv_SE", "sv", 1053},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "Italiano"), "it_IT", "it", 1040},
    Language{QT_TRANSLATE_NOOP("ModuleLangMenu", "Türkçe"), "tr_TR", "tr", 1055},
};
