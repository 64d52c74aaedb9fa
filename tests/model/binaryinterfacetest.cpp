#include "support/Files.h"
#include "support/Processes.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "UI/Models/CityGMLModel/CityGMLFeatureList.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"
#include "UI/Models/CityGMLModel/FeaturePropertyModel.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"
#include "UI/Models/CityGMLModel/properties/GmlEditRangeDialog.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace testsupport;

namespace {

/// What a program that was linked with an earlier build of a library counts on: a line for each symbol, by
/// its name in C++, and for each table of virtual operations with its size. Generated operations and
/// instances of templates are left out: the schemas and the catalogues say what there is of these.
QStringList symbolsOf(const QString& name)
{
    static const QRegularExpression own("^(?:(?:vtable|typeinfo|VTT|(?:non-)?virtual thunk) (?:for|to) "
                                        ")?(?:tolvik|Fondo|citygml|core::(?:free)?CityModel\\b"
                                        "(?!Type)|Create)");
    static const QRegularExpression left("::visit_|^typeinfo name|<[^()]*>(?:::|$)");
    QSet<QString> lines;
    const ProcessResult nm = run("nm", {"-D", "-S", "-C", "--defined-only", library(name)});
    for (const QByteArray& line : nm.out.split('\n')) {
        const QString text = QString::fromUtf8(line);
        const QString symbol = text.section(' ', 3);
        if (!own.match(symbol).hasMatch() || left.match(symbol).hasMatch()) {
            continue;
        }
        const bool isTable = symbol.startsWith("vtable for ");
        const int size = text.section(' ', 1, 1).toInt(nullptr, 16);
        lines.insert(isTable ? QString("%1 [%2 bytes]").arg(symbol).arg(size) : symbol);
    }
    QStringList sorted = lines.values();
    sorted.sort();
    return sorted;
}

/// What a program that derives from a class, or holds one, counts on.
template <class T>
QString sizeOf(const char* name)
{
    return QString("sizeof %1 [%2 bytes]").arg(name).arg(sizeof(T));
}

QStringList classSizes()
{
    return {
        sizeOf<Fondo::Referenced>("Fondo::Referenced"),
        sizeOf<Fondo::String>("Fondo::String"),
        sizeOf<tolvik::CoreProperty>("tolvik::CoreProperty"),
        sizeOf<tolvik::CoreModel>("tolvik::CoreModel"),
        sizeOf<tolvik::Model>("tolvik::Model"),
        sizeOf<tolvik::ProxyModel>("tolvik::ProxyModel"),
        sizeOf<tolvik::TreeNode>("tolvik::TreeNode"),
        sizeOf<tolvik::TreeNodeProxyModel>("tolvik::TreeNodeProxyModel"),
        sizeOf<tolvik::CityGMLModel>("tolvik::CityGMLModel"),
        sizeOf<tolvik::CityGMLProxyModel>("tolvik::CityGMLProxyModel"),
        sizeOf<tolvik::CityGMLTreeModel>("tolvik::CityGMLTreeModel"),
        sizeOf<tolvik::CityGMLFeatureList>("tolvik::CityGMLFeatureList"),
        sizeOf<tolvik::FeaturePropertyModel>("tolvik::FeaturePropertyModel"),
        sizeOf<tolvik::TreeNodeGML>("tolvik::TreeNodeGML"),
        sizeOf<tolvik::GmlCorePropertyCreator>("tolvik::GmlCorePropertyCreator"),
        sizeOf<tolvik::GmlEditRangeDialog>("tolvik::GmlEditRangeDialog"),
    };
}

} // namespace

/// What is known of the libraries by programs that are not built anew: nothing of it goes or changes within a
/// minor version. What comes besides is no fault; `TOLVIK_WRITE_SYMBOLS=1` in the environment writes it down.
class BinaryInterfaceTest : public QObject
{
    Q_OBJECT

private:
    static void compare(const QString& name, const QStringList& now)
    {
        QVERIFY2(now.size() > 10, "hardly any symbols were found");
        const QString file = dataFile("symbols/" + name + ".txt");
        if (qEnvironmentVariableIsSet("TOLVIK_WRITE_SYMBOLS")) {
            QVERIFY(writeFile(file, now.join('\n').toUtf8() + '\n'));
        }
        const QStringList known = QString::fromUtf8(contentOf(file)).split('\n', Qt::SkipEmptyParts);
        QVERIFY2(!known.isEmpty(), qPrintable("there is no " + file));
        const QSet<QString> found(now.begin(), now.end());
        QStringList gone;
        for (const QString& line : known) {
            if (!found.contains(line)) {
                gone.append(line);
            }
        }
        QVERIFY2(gone.isEmpty(),
                 qPrintable(
                     "a new minor version is due, or TOLVIK_WRITE_SYMBOLS=1 where no program can know these, "
                     "which are gone or changed:\n" +
                     gone.join('\n')));
    }

private slots:
    void initTestCase()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the sanitizers add to what a library exports");
#endif
    }

    void symbolsStay_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* const name : {"CityGMLBinding", "CityGMLModel", "TolvikPlatform"}) {
            QTest::newRow(name) << name;
        }
    }
    void symbolsStay()
    {
        QFETCH(QString, name);
        compare(name, symbolsOf(name));
    }

    void sizesStay()
    {
        compare("sizes", classSizes());
    }
};

TEST_CLASS(BinaryInterfaceTest, None)
#include "binaryinterfacetest.moc"
