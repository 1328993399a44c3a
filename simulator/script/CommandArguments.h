#pragma once

#include <QString>
#include <QStringList>

#include <chrono>

namespace simulator
{

/// Removes the double quotes around a word, and the escapes inside them. A word without quotes is
/// returned unchanged.
QString unquoted(const QString& word);

/// The words after a command's name, taken one by one. A word that a command cannot use is recorded
/// as the error and a harmless default is returned instead. Only the first error is kept.
///
/// Words end at blanks outside double quotes. The quotes remain part of the word.
class CommandArguments
{
public:
    explicit CommandArguments(const QString& text)
        : m_rest(text.trimmed())
    {
    }

    bool atEnd() const { return m_rest.isEmpty(); }
    /// The next word, which is not taken. Empty at the end.
    QString peek() const;

    /// @p what names the argument in the error message.
    QString word(const QString& what);
    int integer(const QString& what, int minimum, int maximum);
    /// Seconds with decimals, 0 to 3600.
    std::chrono::milliseconds seconds(const QString& what);
    /// Index of the next word in @p words, 0 with an error when it is not among them.
    int choice(const QStringList& words);
    bool onOff() { return choice({QStringLiteral("off"), QStringLiteral("on")}) == 1; }
    /// All remaining text, unchanged.
    QString rest(const QString& what);

    void fail(const QString& reason);
    const QString& error() const { return m_error; }

private:
    qsizetype wordLength() const;

    QString m_rest;
    QString m_error;
};

} // namespace simulator
