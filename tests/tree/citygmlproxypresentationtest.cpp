#include "support/CityGMLTreeFixture.h"

#include <memory>
#include <QApplication>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QTranslator>
#include <QtTest>

using namespace testsupport;

using tolvik::TreeNode;

namespace {

/// Every key of the icons. All but OuterCeilingSurface have a picture.
const QStringList iconNames{"Appearance",
                            "Bridge",
                            "Building",
                            "CityFurniture",
                            "CityModel",
                            "CityObjectGroup",
                            "Door",
                            "ElectricBoard",
                            "GroundSurface",
                            "LandUse",
                            "Linky",
                            "Luminaire",
                            "OuterCeilingSurface",
                            "PlantCover",
                            "Railway",
                            "ReliefFeature",
                            "Road",
                            "RoofSurface",
                            "SolitaryVegetationObject",
                            "WallSurface",
                            "Window",
                            "default"};

QString path(const QString& name)
{
    return ":/CityGMLModel/" + name + ".png";
}

QImage picture(const QIcon& icon, int size)
{
    return icon.pixmap(size, size).toImage();
}

QIcon iconAt(const QModelIndex& index)
{
    const QVariant icon = index.data(Qt::DecorationRole);
    return icon.userType() == QMetaType::QIcon ? icon.value<QIcon>() : QIcon(path("not an icon at all"));
}

/// A document model that writes down what its data is asked for.
class AskedModel : public tolvik::CityGMLModel
{
public:
    AskedModel() : CityGMLModel(nullptr, nullptr)
    {
        std::istringstream stream(village().toStdString());
        load(stream);
    }

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override
    {
        asked.append(QStringLiteral("%1 %2").arg(SignalRecorder::text(index)).arg(role));
        const bool isOwn = role == Qt::DisplayRole || role == Qt::EditRole || role == Qt::CheckStateRole;
        return isOwn ? CityGMLModel::data(index, role) : QVariant(QStringLiteral("answer of the source"));
    }

    mutable QStringList asked;
};

/// A translation of the tree's texts into capitals, which shows the context that they are looked up in.
class Capitals : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char* /*comment*/,
                      int /*n*/) const override
    {
        return qstrcmp(context, "tolvik::CityGMLProxyModel") == 0 ? QString(text).toUpper() : QString();
    }
    bool isEmpty() const override { return false; }
};

struct CheckedCity : CityTree
{
    CheckedCity() { tree.setCheckColumnEnabled(true); }

    int state(const char* id) const { return at(id).data(Qt::CheckStateRole).toInt(); }
    void hide(const char* id) { model.hide(source(id)); }
};

// Built before there is an application, see main().
std::unique_ptr<CityTree> cityWithoutApplication;
std::unique_ptr<CityTree> cityWithoutDisplay;

} // namespace

class CityGMLProxyPresentationTest : public QObject
{
    Q_OBJECT

private slots:
    void namesAndTypes()
    {
        const CityTree city;
        QCOMPARE(city.at("b1").data(), QVariant("Town hall"));
        QCOMPARE(city.at("b1").data(Qt::EditRole), QVariant("Town hall"));
        QCOMPARE(city.at("b1", 1).data(), QVariant("Building"));
        QCOMPARE(city.at("b1", 1).data(Qt::EditRole), QVariant("Building"));
        QCOMPARE(city.at("d2").data(), QVariant("Door"));
        QCOMPARE(city.at("d2", 1).data(), QVariant("Door"));
        QCOMPARE(city.source("d2").data(), QVariant("<unset>"));
    }

    void namesThatAreNotAscii()
    {
        const CityTree city(
            cityDocument("<cityObjectMember><bldg:Building gml:id=\"b1\"><gml:name>Br\xC3\xBC"
                         "cke \xF0\x9F\x8C\x89</gml:name></bldg:Building></cityObjectMember>"));
        QCOMPARE(city.at("b1").data().toString(), QString::fromUtf8("Br\xC3\xBC"
                                                                    "cke \xF0\x9F\x8C\x89"));
    }

    void nothingIsShownWithoutSourceOrNode()
    {
        CityTree city;
        QVERIFY(!city.tree.data(QModelIndex()).isValid());
        QVERIFY(!city.tree.data(QModelIndex(), Qt::UserRole).isValid());
        const QModelIndex node = city.at("b1");
        city.tree.sourceBusy = true;
        for (int role = 0; role < 14; ++role) {
            QVERIFY(!city.tree.data(node, role).isValid());
        }
        QCOMPARE(city.tree.headerData(0, Qt::Horizontal), QVariant("Name"));
    }

    void headers()
    {
        const OpenTree tree;
        QCOMPARE(tree.headerData(0, Qt::Horizontal), QVariant("Name"));
        QCOMPARE(tree.headerData(1, Qt::Horizontal), QVariant("Type"));
        QCOMPARE(tree.headerData(2, Qt::Horizontal), QVariant("unknown"));
        QCOMPARE(tree.headerData(-1, Qt::Horizontal), QVariant("unknown"));
        QVERIFY(!tree.headerData(0, Qt::Vertical).isValid());
        QVERIFY(!tree.headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
        QVERIFY(!tree.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());

        Capitals capitals;
        QCoreApplication::installTranslator(&capitals);
        QCOMPARE(tree.headerData(0, Qt::Horizontal), QVariant("NAME"));
        QCOMPARE(tree.headerData(1, Qt::Horizontal), QVariant("TYPE"));
        QCOMPARE(tree.headerData(2, Qt::Horizontal), QVariant("UNKNOWN"));
        QCoreApplication::removeTranslator(&capitals);
    }

    void otherRolesAndColumnsGoToTheSource()
    {
        AskedModel model;
        OpenTree tree;
        tree.setSourceModel(&model);
        const QModelIndex name = tree.mapFromSource(model.index(2, 0));
        const QModelIndex type = tree.mapFromSource(model.index(2, 1));
        // A column that the source answers for, though it has none of that number.
        const QModelIndex third =
            tree.index(0, 2, static_cast<TreeNode*>(tree.treeNode(model.getFeature(2))));
        model.asked.clear();
        const QVariant answer("answer of the source");

        QCOMPARE(tree.data(name, Qt::ToolTipRole), answer);
        QCOMPARE(tree.data(name, Qt::ForegroundRole), answer);
        QCOMPARE(tree.data(name, 11), answer);
        QCOMPARE(tree.data(name, Qt::UserRole), answer);
        QCOMPARE(tree.data(name, -1), answer);
        QCOMPARE(tree.data(type, Qt::DecorationRole), answer);
        QCOMPARE(tree.data(third, Qt::DisplayRole), QVariant());
        QCOMPARE(tree.data(third, Qt::EditRole), QVariant());
        QCOMPARE(model.asked,
                 QStringList({"2:0 3", "2:0 9", "2:0 11", "2:0 256", "2:0 -1", "2:1 1", "2:2 0", "2:2 2"}));

        model.asked.clear();
        tree.data(name, Qt::DisplayRole);
        tree.data(name, Qt::EditRole);
        tree.data(name, Qt::DecorationRole);
        tree.data(name, Qt::CheckStateRole);
        tree.data(type, Qt::DisplayRole);
        tree.data(type, Qt::EditRole);
        tree.data(type, Qt::CheckStateRole);
        QCOMPARE(model.asked, QStringList());
    }

    void checkStateBesideTheNameIsAskedForTwice()
    {
        AskedModel model;
        OpenTree tree;
        tree.setSourceModel(&model);
        tree.setCheckColumnEnabled(true);
        const QModelIndex type = tree.mapFromSource(model.index(2, 1));
        model.asked.clear();
        QVERIFY(!tree.data(type, Qt::CheckStateRole).isValid());
        QCOMPARE(model.asked, QStringList({"2:1 10", "2:1 10"}));
    }

    void rolesWithoutData()
    {
        const CityTree city;
        for (const int role : {3, 4, 5, 6, 7, 8, 9, 11, 12, 13, 256}) {
            QVERIFY2(!city.at("b1").data(role).isValid(), qPrintable(QString::number(role)));
        }
    }

    void iconKeys()
    {
        const OpenTree tree;
        QStringList paths;
        for (const QString& name : iconNames) {
            paths.append(path(name));
        }
        QStringList keys = tree.iconMap.keys();
        std::sort(keys.begin(), keys.end());
        std::sort(paths.begin(), paths.end());
        QCOMPARE(keys, paths);
    }

    void picturesAreThere()
    {
        const OpenTree tree;
        QList<QImage> pictures;
        for (const QString& name : iconNames) {
            const QIcon icon = tree.iconMap.value(path(name));
            if (name == "OuterCeilingSurface") {
                QVERIFY(icon.pixmap(16, 16).isNull());
                continue;
            }
            QVERIFY2(QFile::exists(path(name)), qPrintable(name));
            QCOMPARE(picture(icon, 16).size(), QSize(16, 16));
            QCOMPARE(picture(icon, 32).size(), QSize(32, 32));
            QVERIFY2(!pictures.contains(picture(icon, 32)), qPrintable(name));
            pictures.append(picture(icon, 32));
        }
        QCOMPARE(pictures.size(), 21);
    }

    void picturesShowOnLightAndDark_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QColor>("background");
        for (const int size : {16, 32}) {
            QTest::addRow("%d on white", size) << size << QColor(Qt::white);
            QTest::addRow("%d on dark", size) << size << QColor(43, 43, 43);
        }
    }

    void picturesShowOnLightAndDark()
    {
        QFETCH(int, size);
        QFETCH(QColor, background);
        const OpenTree tree;
        for (const QString& name : iconNames) {
            if (name == "OuterCeilingSurface") {
                continue;
            }
            QImage shown(size, size, QImage::Format_RGB32);
            shown.fill(background);
            QPainter(&shown).drawPixmap(0, 0, tree.iconMap.value(path(name)).pixmap(size, size));
            int clear = 0;
            for (int i = 0; i < size * size; ++i) {
                const QColor color = shown.pixelColor(i % size, i / size);
                const int difference =
                    qMax(qMax(qAbs(color.red() - background.red()), qAbs(color.green() - background.green())),
                         qAbs(color.blue() - background.blue()));
                clear += difference > 60 ? 1 : 0;
            }
            // More than a fifth of the picture stands out against the background.
            QVERIFY2(5 * clear > size * size, qPrintable(QString("%1: %2").arg(name).arg(clear)));
        }
    }

    void iconsOfTypes()
    {
        const CityTree city(cityDocument(R"(
  <cityObjectMember>
    <bldg:Building gml:id="b1">
      <bldg:boundedBy><bldg:RoofSurface gml:id="roof"/></bldg:boundedBy>
      <bldg:boundedBy><bldg:OuterCeilingSurface gml:id="ceiling"/></bldg:boundedBy>
      <bldg:interiorRoom><bldg:Room gml:id="room"/></bldg:interiorRoom>
    </bldg:Building>
  </cityObjectMember>
)"));
        const auto& icons = city.tree.iconMap;
        QCOMPARE(picture(iconAt(city.at("city")), 16), picture(icons[path("CityModel")], 16));
        QCOMPARE(picture(iconAt(city.at("b1")), 16), picture(icons[path("Building")], 16));
        QCOMPARE(picture(iconAt(city.at("roof")), 16), picture(icons[path("RoofSurface")], 16));
        QCOMPARE(picture(iconAt(city.at("room")), 16), picture(icons[path("default")], 16));
        QVERIFY(city.at("ceiling").data(Qt::DecorationRole).isValid());
        QVERIFY(iconAt(city.at("ceiling")).pixmap(16, 16).isNull());
        QVERIFY(!city.at("b1", 1).data(Qt::DecorationRole).isValid());
        // Icons are shared.
        QCOMPARE(iconAt(city.at("b1")).cacheKey(), icons[path("Building")].cacheKey());
    }

    void withoutApplicationThereAreNoIcons()
    {
        const CityTree& city = *cityWithoutApplication;
        QVERIFY(city.tree.iconMap.isEmpty());
        for (const char* const id : {"city", "b1", "d2"}) {
            const QVariant icon = city.at(id).data(Qt::DecorationRole);
            QCOMPARE(icon.userType(), int(QMetaType::QIcon));
            QVERIFY(icon.value<QIcon>().isNull());
        }
        QCOMPARE(city.at("b1").data(), QVariant("Town hall"));
    }

    void withoutDisplayTheIconsAreNull()
    {
        const CityTree& city = *cityWithoutDisplay;
        QCOMPARE(city.tree.iconMap.size(), iconNames.size());
        QVERIFY(iconAt(city.at("b1")).isNull());
        QVERIFY(iconAt(city.at("d2")).isNull());
    }

    void checkStateIsOffAtFirst()
    {
        const CityTree city;
        QVERIFY(!city.at("b1").data(Qt::CheckStateRole).isValid());
        QVERIFY(!city.at("b1", 1).data(Qt::CheckStateRole).isValid());
        QVERIFY(!city.at("b1").flags().testFlag(Qt::ItemIsUserCheckable));
    }

    void checkStateOfVisibility()
    {
        CheckedCity city;
        QCOMPARE(city.at("w2").data(Qt::CheckStateRole), QVariant(int(Qt::Checked)));
        QCOMPARE(city.state("b1"), int(Qt::Checked));
        city.hide("w2");
        QCOMPARE(city.at("w2").data(Qt::CheckStateRole), QVariant(int(Qt::Unchecked)));
        QCOMPARE(city.at("b1").data(Qt::CheckStateRole), QVariant(int(Qt::PartiallyChecked)));
        QVERIFY(!city.at("b1", 1).data(Qt::CheckStateRole).isValid());
        city.check();
    }

    void hiddenNodeWithVisibleChildIsPartiallyChecked()
    {
        CheckedCity city;
        city.hide("b1");
        QCOMPARE(city.state("b1"), int(Qt::PartiallyChecked));
        city.hide("w1");
        QCOMPARE(city.state("b1"), int(Qt::PartiallyChecked));
        city.hide("w2");
        QCOMPARE(city.state("b1"), int(Qt::Unchecked));
    }

    void grandchildrenDoNotCount()
    {
        CheckedCity city;
        city.hide("d1");
        QCOMPARE(city.state("d1"), int(Qt::Unchecked));
        QCOMPARE(city.state("w1"), int(Qt::PartiallyChecked));
        QCOMPARE(city.state("b1"), int(Qt::Checked));
    }

    void childWithoutRowCountsAsHidden()
    {
        CheckedCity city;
        disconnect(&city.model, &QAbstractItemModel::rowsAboutToBeRemoved, &city.tree, nullptr);
        city.model.removeFeature(city.feature("d2"));
        QCOMPARE(city.state("w1"), int(Qt::PartiallyChecked));
    }

    void checkStateOfAnotherNode()
    {
        CheckedCity city;
        TreeNode plain(nullptr);
        plain.setChildNumber(0);
        plain.children().emplace_back(city.node("b1"));
        const QModelIndex index = city.tree.index(0, 0, &plain);
        // The base asks for the whole of what is below.
        QCOMPARE(city.tree.recursiveCheckState(index), QVariant(int(Qt::Checked)));
        city.hide("w2");
        QCOMPARE(city.tree.recursiveCheckState(index), QVariant(int(Qt::PartiallyChecked)));
        QCOMPARE(city.tree.recursiveCheckState(QModelIndex()), QVariant());
        QVERIFY(!city.tree.data(index, Qt::DecorationRole).isValid());
        QVERIFY(!city.tree.data(city.tree.index(0, 1, &plain), Qt::DisplayRole).isValid());
    }

    void checkingANodeHidesAndShowsItsFeature()
    {
        CheckedCity city;
        const QAbstractItemModelTester tester(&city.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        QVERIFY(city.tree.setData(city.at("b1"), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(!city.model.isVisible(city.source("b1")));
        QVERIFY(city.model.isVisible(city.source("w1")));
        QVERIFY(city.tree.setData(city.at("b1"), Qt::Checked, Qt::CheckStateRole));
        QVERIFY(city.model.isVisible(city.source("b1")));

        city.tree.setRecursiveSelection(true);
        QVERIFY(city.tree.setData(city.at("b1"), Qt::Unchecked, Qt::CheckStateRole));
        for (const char* const id : {"b1", "w1", "d1", "d2", "w2"}) {
            QVERIFY(!city.model.isVisible(city.source(id)));
        }
        QVERIFY(city.model.isVisible(city.source("b2")));
    }

    void renamingThroughTheTree()
    {
        CityTree city;
        const QAbstractItemModelTester tester(&city.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        QVERIFY(city.tree.setData(city.at("b2"), "Chapel"));
        QCOMPARE(city.at("b2").data(), QVariant("Chapel"));
        QCOMPARE(city.source("b2").data(), QVariant("Chapel"));
        QVERIFY(!city.tree.setData(city.at("b2", 1), "Chapel"));
    }

    void disabledRows()
    {
        CityTree city;
        city.model.disable(city.source("b1"));
        QVERIFY(city.tree.isDisabled(city.node("b1")));
        QVERIFY(!city.tree.isDisabled(city.node("w1")));
        QCOMPARE(city.at("b1").flags(), Qt::NoItemFlags);
        QVERIFY(city.at("w1").flags().testFlag(Qt::ItemIsEnabled));
        QCOMPARE(city.at("b1").data(), QVariant("Town hall"));
        city.model.enable(city.source("b1"));
        QVERIFY(!city.tree.isDisabled(city.node("b1")));
    }

    void disabledStateOfOthers()
    {
        CityTree city;
        TreeNode plain(nullptr);
        QVERIFY(!city.tree.isDisabled(&plain));
        tolvik::TreeNodeGML stranger(nullptr, nullptr);
        QVERIFY(city.tree.isDisabled(&stranger)); // it has no row
        OpenTree withoutSource;
        QVERIFY(!withoutSource.isDisabled(&stranger));
    }

    void nothingIsOpenAtFirst()
    {
        OpenTree tree;
        QCOMPARE(tree.defaultExpandDepth(), 0);
    }
};

int main(int argc, char* argv[])
{
    cityWithoutApplication = std::make_unique<CityTree>();
    {
        const QCoreApplication application(argc, argv);
        cityWithoutDisplay = std::make_unique<CityTree>();
    }
    const QApplication application(argc, argv);
    CityGMLProxyPresentationTest test;
    const int result = QTest::qExec(&test, argc, argv);
    cityWithoutApplication.reset();
    cityWithoutDisplay.reset();
    return result;
}

#include "citygmlproxypresentationtest.moc"
