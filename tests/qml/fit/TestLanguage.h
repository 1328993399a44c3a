#pragma once

#include <QTranslator>

/// Translates into a language that is only for tests: English with every word 40 % longer.
class LongEnglish : public QTranslator
{
    Q_OBJECT

public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override;
};

/// Translates from a file and puts a wide Latin letter for each Chinese, Japanese or Korean one, so
/// that texts are as wide as they are with a font that has those letters.
class WideLetters : public QTranslator
{
    Q_OBJECT

public:
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override;
};
