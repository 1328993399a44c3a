#include "platform/StreamCopy.h"

#include <QTest>

#include <cstddef>

class tst_StreamCopy : public QObject
{
    Q_OBJECT

private slots:
    void copiesExactlyTheRange_data();
    void copiesExactlyTheRange();
};

void tst_StreamCopy::copiesExactlyTheRange_data()
{
    constexpr qsizetype LargeBlock = 1 << 20;
    QTest::addColumn<qsizetype>("length");
    for (const qsizetype length :
         {qsizetype(0), qsizetype(1), qsizetype(4096), LargeBlock - 1, LargeBlock, LargeBlock + 1,
          LargeBlock + 63, LargeBlock + 64, LargeBlock + 127, 3 * LargeBlock + 4097})
        QTest::addRow("%td bytes", std::ptrdiff_t(length)) << length;
}

void tst_StreamCopy::copiesExactlyTheRange()
{
    QFETCH(const qsizetype, length);
    constexpr qsizetype Margin = 128;
    constexpr char Untouched = '\x5a';
    QByteArray source(length + Margin, Qt::Uninitialized);
    for (qsizetype i = 0; i < source.size(); ++i)
        source[i] = char(i * 31 + i / 251);

    for (const auto& [from, to] : {std::pair(0, 0), {1, 0}, {0, 1}, {3, 61}, {63, 63}, {17, 32}}) {
        QByteArray target(length + Margin, Untouched);
        platform::streamCopy(target.data() + to, source.constData() + from, std::size_t(length));
        const QByteArray expected = QByteArray(to, Untouched) + source.mid(from, length) +
                                    QByteArray(Margin - to, Untouched);
        QVERIFY2(target == expected,
                 qPrintable(QString::number(from) + u'/' + QString::number(to)));
    }
}

QTEST_APPLESS_MAIN(tst_StreamCopy)
#include "tst_StreamCopy.moc"
