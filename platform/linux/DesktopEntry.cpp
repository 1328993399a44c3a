#include "platform/linux/DesktopEntry.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace
{

// First of two layers of escapes: those of every string value of an entry.
QString unescapeValue(const QString& value)
{
    QString result;
    result.reserve(value.size());
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            result += value[i];
            continue;
        }
        switch (const QChar escaped = value[++i]; escaped.unicode()) {
        case u's':
            result += u' ';
            break;
        case u'n':
            result += u'\n';
            break;
        case u't':
            result += u'\t';
            break;
        case u'r':
            result += u'\r';
            break;
        case u'\\':
            result += u'\\';
            break;
        default: // an escape of the second layer, the quoting rules
            result += u'\\';
            result += escaped;
        }
    }
    return result;
}

std::optional<QString> execLine(QByteArrayView text)
{
    bool inMainGroup = false;
    for (const QByteArray& rawLine : text.toByteArray().split('\n')) {
        const QByteArray line = rawLine.trimmed();
        if (line.startsWith('[')) {
            inMainGroup = line == "[Desktop Entry]";
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        if (inMainGroup && equals > 0 && line.first(equals).trimmed() == "Exec")
            return unescapeValue(QString::fromUtf8(line.sliced(equals + 1)).trimmed());
    }
    return std::nullopt;
}

bool isAssignment(const QString& word)
{
    const qsizetype equals = word.indexOf(u'=');
    return equals > 0 && !word.first(equals).contains(u'/');
}

// The program that `env` starts: the first word that is neither an option nor an assignment.
std::optional<QString> programOfEnv(const QStringList& words)
{
    for (qsizetype i = 1; i < words.size(); ++i) {
        const QString& word = words[i];
        if (word == "-u"_L1 || word == "-C"_L1 || word == "--unset"_L1 || word == "--chdir"_L1)
            ++i; // the option's value
        else if (!word.startsWith(u'-') && !isAssignment(word))
            return word;
    }
    return std::nullopt;
}

/// Splits an Exec value into program and arguments, resolves quotes and escapes and removes field
/// codes (%U).
class ExecSplitter
{
public:
    explicit ExecSplitter(const QString& line)
        : m_line(line)
    {
    }

    // Empty if a quote is not closed.
    std::optional<QStringList> split()
    {
        while (m_at < m_line.size()) {
            const QChar character = m_line[m_at++];
            if (character == u' ' || character == u'\t' || character == u'\n')
                endWord();
            else if (character != u'"')
                readPlain(character);
            else if (!readQuoted())
                return std::nullopt;
        }
        endWord();
        return m_words;
    }

private:
    // False if the quote is not closed.
    bool readQuoted()
    {
        m_hasWord = true;
        while (m_at < m_line.size()) {
            QChar character = m_line[m_at++];
            if (character == u'"')
                return true;
            if (character == u'\\' && m_at < m_line.size() && u"\"`$\\"_s.contains(m_line[m_at]))
                character = m_line[m_at++];
            m_word += character;
        }
        return false;
    }

    void readPlain(QChar character)
    {
        // Field codes stand for files or addresses to open; there are none to open here.
        if (character == u'%' && m_at < m_line.size()) {
            if (m_line[m_at++] != u'%')
                return;
        } else if (character == u'\\' && m_at < m_line.size()) {
            character = m_line[m_at++];
        }
        m_word += character;
        m_hasWord = true;
    }

    void endWord()
    {
        if (m_hasWord)
            m_words << m_word;
        m_word.clear();
        m_hasWord = false;
    }

    const QString& m_line;
    qsizetype m_at = 0;
    QStringList m_words;
    QString m_word;
    bool m_hasWord = false;
};

} // namespace

namespace platform
{

std::optional<QString> programOfDesktopEntry(QByteArrayView text)
{
    const auto line = execLine(text);
    const auto words = line ? ExecSplitter(*line).split() : std::nullopt;
    if (!words || words->isEmpty() || words->first().isEmpty())
        return std::nullopt;
    const QString& program = words->first();
    if (program == "env"_L1 || program.endsWith("/env"_L1))
        return programOfEnv(*words);
    return program;
}

} // namespace platform
