#include "PageTexts.h"
#include "TestLanguage.h"

#include "app/LoadCustomFont.h"
#include "rig/PageRig.h"

#include <QDir>
#include <QFontDatabase>
#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <QtQuickTest/quicktest.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize ContentArea(706, 666);

struct Page {
    QString file;
    QSize size;
    QStringList states; // JavaScript that brings the page into a state
};

const QList<Page>& pages()
{
    static const QList<Page> s_pages{
        {u"pages/LoginPage"_s,
         {968, 666},
         {u"serverResponse = 'Connection to server failed.'"_s, u"signIn()"_s,
          u"currentPage = 1; createAccountForm.submit()"_s,
          u"str_email = 'jane.doe@company.example'; currentPage = 2"_s,
          u"currentPage = 3; resetPasswordForm.submit()"_s, u"currentPage = 4"_s}},
        {u"pages/MainPage"_s, {968, 666}, {u""_s}},
        {u"pages/Meetings"_s,
         ContentArea,
         {u"currentPage = 0"_s,
          u"currentPage = 1; staging.status = qsTranslate('ConnectionStaging', "
          u"'Connection failed. Please reconnect the device.')"_s,
          u"currentPage = 2"_s, u"currentPage = 3"_s, u"currentPage = 4"_s, u"currentPage = 5"_s}},
        {u"pages/CameraControl"_s, ContentArea, {u"currentPage = 0"_s, u"currentPage = 1"_s}},
        {u"pages/PTZ"_s, {603, 477}, {u"currentPage = 1"_s}},
        {u"pages/PTZManual"_s, {603, 477}, {u"saveButton.visible = true"_s}},
        {u"pages/Personal"_s,
         ContentArea,
         {u"currentPage = 0"_s,
          u"currentPage = 1; serverResponse = 'The picture is too large.'; save()"_s,
          u"picturePopup.error = qsTr('The file must be under 2MB.'); picturePopup.open()"_s}},
        {u"pages/Settings"_s,
         ContentArea,
         {u"currentPage = 0"_s, u"currentPage = 1"_s, u"currentPage = 2"_s}},
        {u"pages/General"_s,
         ContentArea,
         {u"checkForUpdate()"_s, u"hasNewVerion = true"_s, u"currentPage = 1"_s,
          u"currentPage = 2"_s, u"currentPage = 3"_s}},
        {u"pages/MeetingControl"_s, {1092, 835}, {u""_s}},
        {u"pages/CheckRemoteVersion"_s, {680, 342}, {u""_s}},
        {u"controls/MonitorFace"_s,
         {1440, 810},
         {u"text = qsTranslate('Monitor', 'Connection failed, please reconnect.')"_s,
          u"text = qsTranslate('Monitor', 'Setup complete. You may now close this page.')"_s}},
    };
    return s_pages;
}

} // namespace

/// Draws every page in every language and looks for texts that do not fit.
class tst_TextFit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void textsFitTheirPlace_data();
    void textsFitTheirPlace();
    void cleanupTestCase() { m_rig.reset(); }

private:
    std::unique_ptr<QTranslator> translatorFor(const QString& language);
    QStringList faultsOf(const Page& page);

    QString m_family;
    std::optional<PageRig> m_rig;
};

void tst_TextFit::initTestCase()
{
    preferTypographicLineHeight();
    const int font = QFontDatabase::addApplicationFont(QStringLiteral(VORN_LATO_FONT));
    m_family = QFontDatabase::applicationFontFamilies(font).value(0);
    qmlRegisterUncreatableType<CameraControl>("VORNApp", 1, 0, "CameraControl", QString());
    m_rig.emplace();
}

void tst_TextFit::textsFitTheirPlace_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QString();
    QTest::newRow("40 % longer") << u"long"_s;
    const QStringList files = QDir(u":/i18n"_s).entryList({u"VORNApp_*.qm"_s});
    QVERIFY(!files.isEmpty());
    for (const QString& file : files) {
        const QString language = file.sliced(8).chopped(3);
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_TextFit::textsFitTheirPlace()
{
    QFETCH(QString, language);
    const std::unique_ptr<QTranslator> translator = translatorFor(language);
    QCoreApplication::installTranslator(translator.get());
    const Qt::LayoutDirection direction = QLocale(language).textDirection();
    QGuiApplication::setLayoutDirection(direction);
    QStringList faults;
    for (const Page& page : pages())
        faults += faultsOf(page);
    QVERIFY2(faults.isEmpty(), qPrintable(u'\n' + faults.join(u'\n')));
}

std::unique_ptr<QTranslator> tst_TextFit::translatorFor(const QString& language)
{
    if (language == u"long"_s)
        return std::make_unique<LongEnglish>();
    auto translator = std::make_unique<WideLetters>();
    if (!language.isEmpty() && !translator->load(u":/i18n/VORNApp_"_s + language))
        qFatal("A translation cannot be loaded");
    return translator;
}

QStringList tst_TextFit::faultsOf(const Page& page)
{
    QQuickView view;
    view.rootContext()->setContextProperty(u"LatoRegular"_s, m_family);
    m_rig->publish(view.rootContext());
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(page.size);
    view.setSource(
        QUrl::fromLocalFile(QStringLiteral(VORN_QML_FOLDER) + u'/' + page.file + u".qml"_s));
    view.show();
    if (!view.rootObject() || !QTest::qWaitForWindowExposed(&view))
        return {page.file + u" cannot be shown"_s};
    mirrorLayout(view);
    QStringList faults;
    for (const QString& state : page.states) {
        QQmlExpression expression(qmlContext(view.rootObject()), view.rootObject(), state);
        expression.evaluate();
        QCoreApplication::processEvents();
        if (expression.hasError() || !QQuickTest::qWaitForPolish(&view))
            faults += page.file + u": "_s + state + expression.error().toString();
        for (const QString& fault : misplacedTexts(view.contentItem()))
            faults += u"%1, %2: %3"_s.arg(page.file, state, fault);
    }
    return faults;
}

QTEST_MAIN(tst_TextFit)
#include "tst_TextFit.moc"
