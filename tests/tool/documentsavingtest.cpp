#include "apps/common/DocumentSaving.h"
#include "apps/common/DocumentReading.h"
#include "bldg/BuildingType.hxx"
#include "core/CityModelType.hxx"
#include "gml/CodeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <functional>
#include <QDateTime>
#include <QtTest>

using namespace testsupport;
using namespace tolvik;
using tolvik::apps::DocumentReading;
using tolvik::apps::DocumentSaving;
using tolvik::apps::SourceFile;

namespace {

using Change = std::function<void(const QString& path)>;

const char* const hasChanged = "the file that the document was read from has changed";

QDateTime timeOf(const QString& path)
{
    return QFileInfo(path).lastModified();
}

void setTime(const QString& path, const QDateTime& time)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

} // namespace

Q_DECLARE_METATYPE(Change)

/// Saves of programs: which file a document is compared with, and what becomes of the files.
class DocumentSavingTest : public QObject
{
    Q_OBJECT

private:
    QString path(const QString& name) const { return directory->filePath(name); }

    SourceFile load(CityGMLModel& model) const
    {
        DocumentReading reading(path("a.gml"));
        reading.read();
        SourceFile source = reading.source();
        reading.handOver(model);
        return source;
    }

    static void edit(CityGMLModel& model, const char* text)
    {
        auto& building = dynamic_cast<bldg::BuildingType&>(*model.cityGML()->featureMember()[0]._Feature());
        static_cast<std::string&>(*building.class_()) = text;
    }

    std::unique_ptr<QTemporaryDir> directory;
    const QByteArray original = documentText(buildingMember("<bldg:class   >1</bldg:class>"));

private slots:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        QVERIFY(writeFile(path("a.gml"), original));
    }

    void onlyPlainSavesWriteEverythingAnew()
    {
        CityGMLModel model(nullptr, nullptr);
        DocumentSaving saving(model, load(model));
        QVERIFY(saving.save(path("changes.gml"), DocumentSaving::Form::Changes));
        QCOMPARE(contentOf(path("changes.gml")), original);
        QVERIFY(saving.save(path("plain.gml"), DocumentSaving::Form::Plain));
        QVERIFY(contentOf(path("plain.gml")) != original);
        QVERIFY(contentOf(path("plain.gml")).contains("<bldg:class>1</bldg:class>"));
        QCOMPARE(saving.note(), QString());
    }

    void aSourceThatHasChangedIsNoSource_data()
    {
        QTest::addColumn<Change>("change");
        QTest::newRow("gone") << Change([](const QString& path) { QVERIFY(QFile::remove(path)); });
        QTest::newRow("longer") << Change([](const QString& path) {
            const QDateTime time = timeOf(path);
            QVERIFY(writeFile(path, contentOf(path) + '\n'));
            setTime(path, time);
        });
        QTest::newRow("as long") << Change([](const QString& path) {
            const QDateTime time = timeOf(path);
            QVERIFY(writeFile(path, contentOf(path).replace(">1<", ">2<")));
            setTime(path, time.addMSecs(1));
        });
        QTest::newRow("another file") << Change([](const QString& path) {
            QVERIFY(QFile::copy(path, path + ".new"));
            setTime(path + ".new", timeOf(path));
            QVERIFY(QFile::remove(path));
            // Takes the number of the file that is gone.
            QVERIFY(writeFile(path + ".other", "x"));
            QVERIFY(QFile::rename(path + ".new", path));
        });
        QTest::newRow("a directory") << Change([](const QString& path) {
            QVERIFY(QFile::remove(path));
            QVERIFY(QDir().mkpath(path));
        });
    }

    void aSourceThatHasChangedIsNoSource()
    {
        QFETCH(Change, change);
        CityGMLModel model(nullptr, nullptr);
        DocumentSaving saving(model, load(model));
        change(path("a.gml"));
        QVERIFY(saving.save(path("out.gml"), DocumentSaving::Form::Changes));
        QCOMPARE(saving.note(), QString(hasChanged));
        QVERIFY(contentOf(path("out.gml")).contains("<bldg:class>1</bldg:class>"));
        // From now on there is something to compare with.
        edit(model, "3");
        const QByteArray written = contentOf(path("out.gml"));
        QVERIFY(saving.save(path("out.gml"), DocumentSaving::Form::Changes));
        QCOMPARE(saving.note(), QString());
        QCOMPARE(contentOf(path("out.gml")), QByteArray(written).replace(">1<", ">3<"));
    }

    void whatWasSavedIsTheNextSource()
    {
        CityGMLModel model(nullptr, nullptr);
        DocumentSaving saving(model, load(model));
        edit(model, "2");
        QVERIFY(saving.save(path("b.gml"), DocumentSaving::Form::Changes));
        QCOMPARE(contentOf(path("b.gml")), QByteArray(original).replace(">1<", ">2<"));
        QVERIFY(QFile::remove(path("a.gml")));
        edit(model, "3");
        QVERIFY(saving.save(path("b.gml"), DocumentSaving::Form::Changes));
        QCOMPARE(contentOf(path("b.gml")), QByteArray(original).replace(">1<", ">3<"));
        QCOMPARE(saving.note(), QString());
        QCOMPARE(saving.source().path(), path("b.gml"));
    }

    void aSaveThatFailsChangesNothing()
    {
        CityGMLModel model(nullptr, nullptr);
        DocumentSaving saving(model, load(model));
        QVERIFY(!saving.save(path("none/b.gml"), DocumentSaving::Form::Changes));
        QVERIFY(!saving.error().isEmpty());
        QVERIFY(!saving.save(path("."), DocumentSaving::Form::Changes));
        QCOMPARE(saving.source().path(), path("a.gml"));
        QVERIFY(saving.save(path("a.gml"), DocumentSaving::Form::Changes));
        QCOMPARE(saving.error(), QString());
        QCOMPARE(contentOf(path("a.gml")), original);
        QCOMPARE(QDir(directory->path()).entryList(QDir::Files | QDir::Hidden), QStringList("a.gml"));
    }

    void aLinkToNothingLeadsToTheNewFile()
    {
        QVERIFY(QFile::link(path("new.gml"), path("link.gml")));
        CityGMLModel model(nullptr, nullptr);
        DocumentSaving saving(model, load(model));
        QVERIFY(saving.save(path("link.gml"), DocumentSaving::Form::Changes));
        QVERIFY(QFileInfo(path("link.gml")).isSymLink());
        QCOMPARE(contentOf(path("new.gml")), original);
    }
};

TEST_CLASS(DocumentSavingTest, Core)
#include "documentsavingtest.moc"
