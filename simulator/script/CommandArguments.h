#pragma once

#include <QString>
#include <QStringList>

#include <chrono>

namespace simulator
{

/// A word without the double quotes around it, or as it stands when there are none.
QString unquoted(const QString& word);

/// The words after a command's name, taken one by one. What a command cannot use is noted as the
/// error; the first one stays, and everything taken after it is a harmless default.
///
/// Words end at blanks outside double quotes; the quotes remain part of the word.
class CommandArguments
{
public:
    explicit CommandArguments(const QString& text)
        : m_rest(text.trimmed())
    {
    }

    bool atEnd() const { return m_rest.isEmpty(); }
    /// The next word without taking it, empty at the end.
    QString peek() const;

    /// @p what names the argument in the error message.
    QString word(const QString& what);
    int integer(const QString& what, int minimum, int maximum);
    /// Seconds with decimals, 0 to 3600.
    std::chrono::milliseconds seconds(const QString& what);
    /// Index of the next word among @p words; 0 when it is none of them.
    int choice(const QStringList& words);
    bool onOff() { return choice({QStringLiteral("off"), QStringLiteral("on")}) == 1; }
    /// Everything that is left, as it stands.
    QString rest(const QString& what);

    void fail(const QString& reason);
    const QString& error() const { return m_error; }

private:
    qsizetype wordLength() const;

    QString m_rest;
    QString m_error;
};

} // namespace simulator
