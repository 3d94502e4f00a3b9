#pragma once

#include <QString>

class QSettings;
class QTranslator;

/// The translators that the program installed at start-up; a missing one is passed over.
struct InstalledTranslators
{
    QTranslator *application = nullptr;
    QTranslator *qtBase = nullptr;
    QTranslator *qt = nullptr;
};

/// Carries out a choice of language, here and towards the sibling drivers. GUI thread only.
class LanguageSwitcher
{
public:
    /// \a settings hold the values that hub and siblings share; they must outlive this object.
    explicit LanguageSwitcher(QSettings &settings);

    /// The language of the last run: an index of Languages, 0 on a first run or for a value that means
    /// nothing.
    int savedLanguage() const;

    /// Loads the language at \a index of Languages into the translators, whose texts follow by
    /// LanguageChange, and saves it. \a text is its name in the menu. The language is loaded and saved again
    /// even if it is the current one; an index outside the table changes nothing.
    void apply(int index, const QString &text, const InstalledTranslators &translators, int hostedFamily);

    /// The locale with a dash, such as "zh-CN"; empty before the first choice.
    QString localeTag() const { return tag; }
    /// What the language button shows: a blank and the language's name; empty before the first choice.
    QString languageText() const { return text; }

private:
    QSettings &settings;
    QString tag;
    QString text;
};
