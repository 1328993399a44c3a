#include "app/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto Prefix = "VORNApp_"_L1;
constexpr auto Suffix = ".qm"_L1;

/// Neither territory nor dialect keeps somebody from reading a language, but another script does.
bool isReadableAs(const QLocale& wanted, const QLocale& offered)
{
    return wanted.language() == offered.language() && wanted.script() == offered.script();
}

} // namespace

Translations::Translations(QString folder, QStringList qtFolders)
    : m_folder(std::move(folder))
    , m_qtFolders(std::move(qtFolders))
{
}

Translations::Translations()
    : Translations(u":/i18n"_s, {QLibraryInfo::path(QLibraryInfo::TranslationsPath),
                                 QCoreApplication::applicationDirPath() + u"/translations"_s})
{
}

Translations::~Translations() = default;

void Translations::install(const QStringList& wanted)
{
    const QString language = choose(wanted);
    if (language.isEmpty() || !load(Prefix + language, m_folder))
        return;
    m_language = language;
    loadQt();
    // Qt knows the direction from a translation of its own, which may not be installed.
    if (const auto direction = QLocale(language).textDirection(); direction == Qt::RightToLeft)
        QGuiApplication::setLayoutDirection(direction);
}

QString Translations::choose(const QStringList& wanted) const
{
    QStringList files;
    for (const QString& name : wanted) {
        const QLocale locale(name);
        if (locale.language() == QLocale::English)
            return {};
        // Qt takes a name that it does not know for the C locale.
        if (locale.language() == QLocale::C)
            continue;
        if (files.isEmpty())
            files = QDir(m_folder).entryList({Prefix + u'*' + Suffix});
        for (const QString& file : files) {
            QString offered = file.sliced(Prefix.size()).chopped(Suffix.size());
            if (isReadableAs(locale, QLocale(offered)))
                return offered;
        }
    }
    return {};
}

/// Qt's names of languages are ours. Linux distributions have one file for each module of Qt,
/// Windows' deploy tool makes one of all.
void Translations::loadQt()
{
    for (const QString& folder : m_qtFolders) {
        const bool base = load(u"qtbase_"_s + m_language, folder);
        const bool declarative = load(u"qtdeclarative_"_s + m_language, folder);
        if (base || declarative || load(u"qt_"_s + m_language, folder))
            return;
    }
}

bool Translations::load(const QString& name, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name, folder))
        return false;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
    return true;
}
