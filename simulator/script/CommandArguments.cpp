#include "simulator/script/CommandArguments.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>
#include <utility>

using namespace simulator;
using namespace Qt::StringLiterals;

QString simulator::unquoted(const QString& word)
{
    const QJsonArray parsed = QJsonDocument::fromJson("[" + word.toUtf8() + "]").array();
    return parsed.size() == 1 ? parsed.first().toString(word) : word;
}

qsizetype CommandArguments::wordLength() const
{
    bool quoted = false;
    for (qsizetype i = 0; i < m_rest.size(); ++i) {
        if (m_rest.at(i) == u'"')
            quoted = !quoted;
        else if (m_rest.at(i) == u'\\' && quoted)
            ++i; // an escaped quote does not end the quotation
        else if (m_rest.at(i).isSpace() && !quoted)
            return i;
    }
    return m_rest.size();
}

QString CommandArguments::peek() const
{
    return m_rest.left(wordLength());
}

QString CommandArguments::word(const QString& what)
{
    if (atEnd()) {
        fail(u"%1 is missing"_s.arg(what));
        return {};
    }
    const qsizetype length = wordLength();
    QString word = m_rest.left(length);
    m_rest = m_rest.sliced(length).trimmed();
    return word;
}

int CommandArguments::integer(const QString& what, int minimum, int maximum)
{
    const QString text = word(what);
    bool ok = false;
    const int value = text.toInt(&ok);
    if (ok && value >= minimum && value <= maximum)
        return value;
    fail(u"%1 must be a whole number from %2 to %3, not \"%4\""_s.arg(what)
             .arg(minimum)
             .arg(maximum)
             .arg(text));
    return minimum;
}

std::chrono::milliseconds CommandArguments::seconds(const QString& what)
{
    constexpr double Maximum = 3600;
    const QString text = word(what);
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (ok && value >= 0 && value <= Maximum)
        return std::chrono::milliseconds(std::llround(value * 1000));
    fail(u"%1 must be a number of seconds from 0 to 3600, not \"%2\""_s.arg(what, text));
    return {};
}

int CommandArguments::choice(const QStringList& words)
{
    const QString list = words.join(u" or "_s);
    const QString text = word(list);
    const qsizetype index = words.indexOf(text);
    if (index >= 0)
        return int(index);
    fail(u"must be %1, not \"%2\""_s.arg(list, text));
    return 0;
}

QString CommandArguments::rest(const QString& what)
{
    if (atEnd())
        fail(u"%1 is missing"_s.arg(what));
    return std::exchange(m_rest, {});
}

void CommandArguments::fail(const QString& reason)
{
    if (m_error.isEmpty())
        m_error = reason;
}
