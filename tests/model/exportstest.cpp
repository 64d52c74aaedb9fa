#include "support/Symbols.h"
#include "support/TestClass.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace testsupport;

namespace {

const QStringList exportedClasses{
    "CityGMLFeatureList",
    "CityGMLModel",
    "CityGMLProxyModel",
    "TreeNodeGML",
    "CityGMLProxyModelTraverseAllVisitor",
    "CityGMLProxyModelTraverseNoApparencesVisitor",
    "CityGMLTreeModel",
    "CityGMLProxyModelTraverseChildrenVisitor",
    "CityGMLProxyModelTraverseChildrenGMLVisitor",
    "GmlCorePropertyCreator",
    "CityGMLPropertiesVisitor",
    "GmlEditRangeDialog",
    "OtherContentProvider",
    "FeaturePropertyModel",
    "BoundProperty",
};

const QStringList exportedFunctions{"featureRoleNames", "firstCharacterNotInXml"};

const QStringList exportedFunctionTemplates{"toQVariant", "fromQVariant", "defaultValue", "getEnumList"};

const QStringList exportedClassTemplates{
    "GmlAttributeProperty",
    "GmlEnumAttributeProperty",
    "GmlGenericApplicationAttributeProperty",
    "GmlEnumGenericApplicationAttributeProperty",
};

/// A name of namespace tolvik as it stands in a symbol.
QString inTolvik(const QString& name)
{
    return "6tolvik" + QString::number(name.size()) + name;
}

QString anyOf(const QStringList& names, const QString& end)
{
    QStringList patterns;
    for (const QString& name : names) {
        patterns.append(inTolvik(name) + end);
    }
    return "(?:" + patterns.join('|') + ')';
}

} // namespace

/// What the library exports: its interface, and nothing of what it is made with.
class ExportsTest : public QObject
{
    Q_OBJECT

private:
    QStringList symbols;

private slots:
    void initTestCase()
    {
        symbols = exportedSymbols("CityGMLModel");
        QVERIFY(!symbols.isEmpty());
    }

    void nothingElseIsExported()
    {
        // An operation, or one of the tables and records of a class; thunks adjust `this` for a base.
        const QString member = "_Z(?:T[hv][n0-9_]+_)?NK?";
        const QString record = "_ZT[VIST](?:N)";
        const QStringList allowed{
            member + anyOf(exportedClasses, "(?!E)"),
            member + anyOf(exportedFunctions, "E"),
            member + anyOf(exportedClassTemplates, "I.*E.*"),
            member + anyOf(exportedFunctionTemplates, "I"),
            record + anyOf(exportedClasses, "E$"),
            record + anyOf(exportedClassTemplates, "I.*EE$"),
            "_ZTCN" + anyOf(exportedClasses, "E[0-9]+_"),
        };
        const QRegularExpression pattern("^(?:" + allowed.join('|') + ')');
        QStringList others;
        for (const QString& symbol : qAsConst(symbols)) {
            if (!pattern.match(symbol).hasMatch()) {
                others.append(demangled(qPrintable(symbol)) + "  " + symbol);
            }
        }
        QVERIFY2(others.isEmpty(), qPrintable(QString::number(others.size()) + " more symbols, as\n" +
                                              others.mid(0, 20).join('\n')));
    }

    void everyClassIsExported()
    {
        const QSet<QString> all(symbols.begin(), symbols.end());
        for (const QString& name : exportedClasses) {
            QVERIFY2(all.contains("_ZTIN" + inTolvik(name) + 'E'), qPrintable("no type record of " + name));
            QVERIFY2(all.contains("_ZTVN" + inTolvik(name) + 'E'), qPrintable("no virtual table of " + name));
            const QString constructor = "_ZN" + inTolvik(name) + "C1E";
            QVERIFY2(std::any_of(symbols.begin(), symbols.end(),
                                 [&](const QString& symbol) { return symbol.startsWith(constructor); }),
                     qPrintable("no constructor of " + name));
        }
    }

    void everyTemplateFamilyIsExported()
    {
        for (const QString& name : exportedFunctionTemplates + exportedClassTemplates) {
            const QString instance = "_ZN" + inTolvik(name) + 'I';
            QVERIFY2(std::any_of(symbols.begin(), symbols.end(),
                                 [&](const QString& symbol) { return symbol.startsWith(instance); }),
                     qPrintable("no instance of " + name));
        }
    }
};

TEST_CLASS(ExportsTest, None)
#include "exportstest.moc"
