#include "app/Translations.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

QString submitText()
{
    return QCoreApplication::translate("SignInForm", "Sign In");
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    void firstReadableLanguageIsChosen_data();
    void firstReadableLanguageIsChosen();
    void textsFollowTheLanguageAndFallBackToEnglish();
    void rightToLeftLanguageTurnsTheLayout();
    void qtTextsComeFromTheFirstFolderThatHasThem();
};

void tst_Translations::firstReadableLanguageIsChosen_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("language");

    QTest::newRow("none") << QStringList() << QString();
    QTest::newRow("C") << QStringList{u"C"_s} << QString();
    QTest::newRow("territory") << QStringList{u"de-AT"_s} << u"de"_s;
    QTest::newRow("English first") << QStringList{u"en-GB"_s, u"de"_s} << QString();
    QTest::newRow("unknown first")
        << QStringList{u"tlh"_s, u"eo"_s, u"fr-CA"_s, u"en"_s} << u"fr"_s;
    QTest::newRow("European Portuguese") << QStringList{u"pt-PT"_s} << u"pt_BR"_s;
    QTest::newRow("Chinese") << QStringList{u"zh"_s} << u"zh_CN"_s;
    QTest::newRow("Singapore") << QStringList{u"zh-SG"_s} << u"zh_CN"_s;
    QTest::newRow("Hong Kong") << QStringList{u"zh-HK"_s} << u"zh_TW"_s;
    QTest::newRow("script") << QStringList{u"zh-Hant-CN"_s} << u"zh_TW"_s;
}

void tst_Translations::firstReadableLanguageIsChosen()
{
    QFETCH(QStringList, wanted);
    Translations translations;
    translations.install(wanted);
    QTEST(translations.language(), "language");
}

void tst_Translations::textsFollowTheLanguageAndFallBackToEnglish()
{
    {
        Translations translations;
        translations.install({u"de-DE"_s});
        QCOMPARE(submitText(), u"Anmelden"_s);
        QCOMPARE(QCoreApplication::translate("SignInForm", "Without translation"),
                 u"Without translation"_s);
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    }
    QCOMPARE(submitText(), u"Sign In"_s);
}

void tst_Translations::rightToLeftLanguageTurnsTheLayout()
{
    Translations translations;
    translations.install({u"ar-EG"_s});
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
}

void tst_Translations::qtTextsComeFromTheFirstFolderThatHasThem()
{
    const QTemporaryDir empty;
    const QTemporaryDir program;
    const QTemporaryDir qt;
    // The program's own translation in place of Qt's, where its texts show that it was loaded.
    QVERIFY(QFile(program.filePath(u"VORNApp_de.qm"_s)).open(QFile::WriteOnly));
    QVERIFY(QFile::copy(u":/i18n/VORNApp_fr.qm"_s, program.filePath(u"VORNApp_fr.qm"_s)));
    QVERIFY(QFile::copy(u":/i18n/VORNApp_de.qm"_s, qt.filePath(u"qtbase_fr.qm"_s)));

    Translations unreadable(program.path(), {qt.path()});
    unreadable.install({u"de"_s});
    QCOMPARE(submitText(), u"Sign In"_s);

    Translations translations(program.path(), {empty.path(), qt.path()});
    translations.install({u"fr"_s});
    QCOMPARE(submitText(), u"Anmelden"_s);
}

QTEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
