#pragma once

#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

/// Shows the program's texts in the user's language while it lives. English is the language of the
/// sources: for it, and for a language without translation, nothing is loaded. A text without
/// translation appears in English. Use on the main thread, within the life of the
/// application object.
class Translations
{
public:
    /// @param folder     holds VORNApp_<language>.qm, one file a language
    /// @param qtFolders  where Qt's own translations are looked for, the first that has them counts
    explicit Translations(QString folder, QStringList qtFolders);
    /// The translations of the program, and Qt's from Qt's folder or from `translations` beside
    /// the program.
    Translations();
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    /// Loads the first language of `wanted` that there is, and turns the layout in a language that
    /// is written from right to left. Call once, before the first text is shown.
    /// @param wanted  names of locales in the order of preference, as QLocale::uiLanguages() gives
    void install(const QStringList& wanted);

    /// The language that install() chose, as in "pt_BR"; empty for English.
    QString language() const { return m_language; }

private:
    QString choose(const QStringList& wanted) const;
    bool load(const QString& name, const QString& folder);
    void loadQt();

    QString m_folder;
    QStringList m_qtFolders;
    QString m_language;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
