#include "support/Processes.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"

#include <QImage>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

using namespace testsupport;

namespace {

QSet<QRgb> coloursOf(const QImage& image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
        }
    }
    return colours;
}

} // namespace

/// `tolvik-inspect picture`.
class PictureCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void drawsADocumentWithoutADisplay();
    void drawsOneLevelOfDetail();
    void coloursByAnAttribute();
    void saysWhyThereIsNoPicture_data();
    void saysWhyThereIsNoPicture();

private:
    QString out() const { return folder.filePath("out.png"); }

    const QString district = examples() + "/district.gml";
    const QTemporaryDir folder;
    /// How the first picture went, which the others are compared with.
    ProcessResult drawn = {-1, {}, {}};
    QImage plain;
};

TEST_CLASS(PictureCommandTest, Core)

void PictureCommandTest::initTestCase()
{
    drawn = inspect({"picture", district, out(), "--size", "320x200"});
    plain = QImage(out());
}

void PictureCommandTest::drawsADocumentWithoutADisplay()
{
    QVERIFY2(drawn.code == 0, drawn.err);
    QVERIFY(drawn.out.isEmpty());
    QVERIFY2(drawn.err.contains("textures/roof.png"), drawn.err);
    QCOMPARE(plain.size(), QSize(320, 200));
    QVERIFY(coloursOf(plain).size() > 3);
}

void PictureCommandTest::drawsOneLevelOfDetail()
{
    QCOMPARE(inspect({"picture", district, out(), "--size", "320x200", "--lod", "1"}).code, 0);
    const QImage one(out());
    QVERIFY(plain != one);
    QVERIFY(coloursOf(one).size() > 1);
}

void PictureCommandTest::coloursByAnAttribute()
{
    QCOMPARE(
        inspect({"picture", district, out(), "--size", "320x200", "--colour-by", "Fields/MeasuredHeight"})
            .code,
        0);
    const QSet<QRgb> values = coloursOf(QImage(out()));
    QVERIFY(values.size() > 3);
    QVERIFY(values != coloursOf(plain));
}

void PictureCommandTest::saysWhyThereIsNoPicture_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing to draw") << QStringList{examples() + "/component.gml"} << 1
                                     << QByteArray("nothing to draw");
    QTest::newRow("no such attribute")
        << QStringList{district, "--colour-by", "Fields/Nonsense"} << 1 << QByteArray("Fields/Nonsense");
    QTest::newRow("no such level") << QStringList{district, "--lod", "5"} << 2 << QByteArray("5");
    QTest::newRow("no size") << QStringList{district, "--size", "wide"} << 2 << QByteArray("wide");
    QTest::newRow("too large") << QStringList{district, "--size", "900000x9"} << 1 << QByteArray("that size");
    QTest::newRow("no document") << QStringList{"nowhere.gml"} << 1 << QByteArray("nowhere.gml");
}

void PictureCommandTest::saysWhyThereIsNoPicture()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QByteArray, text);
    QFile::remove(out());
    arguments.insert(1, out());
    const ProcessResult result = inspect(QStringList{"picture"} + arguments);
    QCOMPARE(result.code, code);
    QVERIFY2(result.err.contains(text), result.err);
    QVERIFY(!QFile::exists(out()));
}

#include "picturecommandtest.moc"
