#include "account/AccountText.h"

#include <QLatin1StringView>

using namespace Qt::StringLiterals;

namespace
{

// In characters.
constexpr qsizetype LongestMessage = 500;
constexpr qsizetype LongestToken = 8192;
constexpr qsizetype LongestText = 256;

QString cleaned(const QString& text, qsizetype longest)
{
    QString clean = text.left(longest);
    if (!clean.isEmpty() && clean.back().isHighSurrogate())
        clean.chop(1);
    for (QChar& character : clean) {
        if (character.category() == QChar::Other_Control)
            character = u' ';
    }
    return clean;
}

} // namespace

QString AccountText::message(const QString& text)
{
    return cleaned(text, LongestMessage);
}

QString AccountText::value(QStringView name, const QString& text)
{
    if (name == "picture"_L1)
        return text;
    return cleaned(text, name == "token"_L1 ? LongestToken : LongestText);
}
