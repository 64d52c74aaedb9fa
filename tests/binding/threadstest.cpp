#include "citygml/CityGMLFeaturesFillVisitor.h"
#include "citygml/CityModel.h"
#include "core/CityModelType.hxx"
#include "framework/CoreProperty.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <QTest>

#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

using namespace testsupport;

using namespace tolvik;

namespace {

void print(std::ostream& out, CoreProperty& property)
{
    out << property.name().toStdString() << '=' << property.value().toString().toStdString() << '\n';
    for (const QVariant& value : property.potentialValues()) {
        out << '|' << value.toString().toStdString();
    }
    for (const auto& child : property.properties()) {
        print(out, *child);
    }
}

using Document = std::unique_ptr<core::CityModelType>;

Document readFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return Document(core::CityModel(file).release());
}

std::string written(const core::CityModelType& document)
{
    std::ostringstream result;
    core::CityModel(result, document, xsd::cxx::xml::dom::namespace_infomap<char>());
    return result.str();
}

/// The document as it is written, and the property trees of its features.
std::string everythingOf(core::CityModelType& document)
{
    std::ostringstream result;
    CityGMLFeaturesFillVisitor features;
    document.accept(&features);
    for (gml::AbstractFeatureType* feature : features.getModelFeatures()) {
        const Fondo::RefPtr<CoreProperty> root = GmlCorePropertyCreator::createProperty(feature, false);
        print(result, *root);
    }
    return result.str() + written(document);
}

} // namespace

/// Documents that one thread reads and another one uses. The thread sanitizer sees what they share.
class ThreadsTest : public QObject
{
    Q_OBJECT

private slots:
    void aDocumentIsReadInOneThreadAndUsedInAnother()
    {
        const QStringList paths = documentsBelow(examples());
        QVERIFY(!paths.isEmpty());
        for (const QString& path : paths) {
            const std::string name = path.toStdString();
            Document readElsewhere;
            std::thread reader([&] { readElsewhere = readFile(name); });
            reader.join();
            const Document readHere = readFile(name);
            const std::string expected = everythingOf(*readHere);
            QVERIFY2(expected.find("CityModel>") != std::string::npos, name.c_str());
            QVERIFY2(everythingOf(*readElsewhere) == expected, name.c_str());
        }
    }

    void severalDocumentsAreReadAndWrittenAtOnce()
    {
        const QStringList paths = documentsBelow(examples());
        std::vector<std::string> expected, found(paths.size());
        for (const QString& path : paths) {
            const Document document = readFile(path.toStdString());
            expected.push_back(written(*document));
        }
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < found.size(); ++i) {
            threads.emplace_back([&, i] {
                const Document document = readFile(paths[static_cast<int>(i)].toStdString());
                found[i] = written(*document);
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        QVERIFY(found == expected);
    }

    void aDocumentIsFreedInAnotherThread()
    {
        for (const QString& path : documentsBelow(examples())) {
            Document document = readFile(path.toStdString());
            std::thread([&] { document.reset(); }).join();
            QVERIFY(document == nullptr);
        }
    }
};

TEST_CLASS(ThreadsTest, None)
#include "threadstest.moc"
