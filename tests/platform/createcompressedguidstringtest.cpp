#include "citygml/CreateCompressedGuidString.h"
#include "support/TestClass.h"

#include <cstring>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace testsupport;

class CreateCompressedGuidStringTest : public QObject
{
    Q_OBJECT

private slots:
    void writesTwentyTwoCharacters()
    {
        char buffer[32];
        std::memset(buffer, '#', sizeof buffer);
        QCOMPARE(CreateCompressedGuidString(buffer, 23), static_cast<char*>(buffer));
        QCOMPARE(std::strlen(buffer), std::size_t(22));
        QCOMPARE(QByteArray(buffer + 23, 9), QByteArray(9, '#'));
    }

    void isAnNcNameAndUnique()
    {
        const QRegularExpression ncName("\\A[A-Za-z_][A-Za-z0-9._-]*\\z");
        QSet<QByteArray> all;
        for (int i = 0; i < 20000; ++i) {
            char buffer[23];
            const QByteArray text(CreateCompressedGuidString(buffer, sizeof buffer));
            QVERIFY2(ncName.match(text).hasMatch(), text.constData());
            all.insert(text);
        }
        QCOMPARE(all.size(), 20000);
    }

    void tooSmallABufferStaysEmpty()
    {
        char buffer[23];
        std::memset(buffer, '#', sizeof buffer);
        QCOMPARE(CreateCompressedGuidString(buffer, 22), static_cast<char*>(buffer));
        QCOMPARE(buffer[0], '\0');
        QCOMPARE(QByteArray(buffer + 1, 22), QByteArray(22, '#'));
        buffer[0] = '#';
        CreateCompressedGuidString(buffer, 0);
        QCOMPARE(buffer[0], '#');
        QVERIFY(CreateCompressedGuidString(nullptr, 23) == nullptr);
    }
};

TEST_CLASS(CreateCompressedGuidStringTest, Core)
#include "createcompressedguidstringtest.moc"
