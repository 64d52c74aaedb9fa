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

/// The document as it is written, and the property trees of its features.
std::string everythingOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::unique_ptr<core::CityModelType> document(core::CityModel(file).release());
    std::ostringstream result;
    CityGMLFeaturesFillVisitor features;
    document->accept(&features);
    for (gml::AbstractFeatureType* feature : features.getModelFeatures()) {
        const Fondo::RefPtr<CoreProperty> root = GmlCorePropertyCreator::createProperty(feature, false);
        print(result, *root);
    }
    core::CityModel(result, *document, xsd::cxx::xml::dom::namespace_infomap<char>());
    return result.str();
}

/// The result of everythingOf() for each document, or the reason why there is none.
std::vector<std::string> everythingOf(const std::vector<std::string>& paths)
{
    std::vector<std::string> results;
    for (const std::string& path : paths) {
        try {
            results.push_back(everythingOf(path));
        } catch (const std::exception& error) {
            results.push_back(path + ": " + error.what());
        }
    }
    return results;
}

} // namespace

/// Documents on several threads, each used by one of them alone. The thread sanitizer sees what they share.
class ThreadsTest : public QObject
{
    Q_OBJECT

private slots:
    /// The threads come first, so that they meet in whatever the process makes once.
    void threadsWithADocumentEachDoNotDisturbEachOther()
    {
        std::vector<std::string> paths;
        for (const QString& path : documentsBelow(examples())) {
            paths.push_back(path.toStdString());
        }
        QVERIFY(!paths.empty());

        std::vector<std::vector<std::string>> results(4);
        std::vector<std::thread> threads;
        for (std::vector<std::string>& result : results) {
            threads.emplace_back([&] { result = everythingOf(paths); });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }

        const std::vector<std::string> expected = everythingOf(paths);
        for (std::size_t i = 0; i < paths.size(); ++i) {
            QVERIFY2(expected[i].find("CityModel>") != std::string::npos, expected[i].c_str());
            for (const std::vector<std::string>& result : results) {
                QVERIFY2(result[i] == expected[i], paths[i].c_str());
            }
        }
    }
};

TEST_CLASS(ThreadsTest, None)
#include "threadstest.moc"
