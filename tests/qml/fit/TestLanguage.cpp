#include "TestLanguage.h"

#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace
{

constexpr double Longer = 0.4;
constexpr char16_t FirstWideLetter = 0x2e80;
// As wide as it is high in Lato; a line may break after it.
const QString WideLetter = u"W\u200b"_s;

} // namespace

QString LongEnglish::translate(const char* context, const char* sourceText,
                               const char* /*disambiguation*/, int /*n*/) const
{
    // Qt's own texts are none of the program's, and forms of time are no words.
    if (QByteArray(context).startsWith('Q') && QByteArray(context) != "QuickTextField")
        return {};
    QString text = QString::fromUtf8(sourceText);
    if (text == "hh:mm AP"_L1 || text == "ddd, MMM dd, yyyy"_L1)
        return text;
    if (text.contains(u'.')) // the translator of a sentence breaks its lines elsewhere
        text.replace(u'\n', u' ');
    static const QRegularExpression s_word(u"[^\\s%]{2,}"_s);
    qsizetype offset = 0;
    for (QRegularExpressionMatch word = s_word.match(text); word.hasMatch();
         word = s_word.match(text, offset)) {
        const auto length =
            static_cast<qsizetype>(std::ceil(Longer * double(word.capturedLength())));
        text.insert(word.capturedEnd(), QString(length, u'o'));
        offset = word.capturedEnd() + length;
    }
    return text;
}

QString WideLetters::translate(const char* context, const char* sourceText,
                               const char* disambiguation, int n) const
{
    QString text;
    for (const QChar letter : QTranslator::translate(context, sourceText, disambiguation, n))
        text += letter.unicode() < FirstWideLetter ? QString(letter) : WideLetter;
    return text;
}
