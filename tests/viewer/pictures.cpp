// Writes pictures of parts of the desktop program, with a street of houses, for docs/screenshots.sh:
//
//     viewer-pictures FOLDER
//
// The table, the preview of an import, and the properties of several features.

#include "apps/tables/TableExchange.h"
#include "apps/viewer/application/Colours.h"
#include "apps/viewer/application/Translations.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/exchange/ImportDialog.h"
#include "apps/viewer/features/FeatureBrowser.h"
#include "apps/viewer/table/AttributeTable.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "viewer/OpenedWindow.h"

#include <log4cplus/initializer.h>
#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QEventLoop>
#include <QHeaderView>
#include <QLocale>
#include <QTableView>
#include <QTimer>

using namespace testsupport;
using namespace tolvik;
using namespace tolvik::viewer;

namespace {

constexpr int houses = 14;
constexpr int rowsOfAHouse = 7;

// So that what a window does when the event loop is idle has been done.
constexpr int settlingMilliseconds = 1500;

void settle()
{
    QEventLoop loop;
    QTimer::singleShot(settlingMilliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

QByteArray number(int value)
{
    return QByteArray::number(value);
}

QByteArray polygon(const QVector<QVector<int>>& corners)
{
    QByteArray positions;
    for (const QVector<int>& corner : corners) {
        positions += number(corner[0]) + ' ' + number(corner[1]) + ' ' + number(corner[2]) + ' ';
    }
    return "<gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>" + positions +
           "</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>";
}

/// A house of a width of 8 m, as a box.
QByteArray box(int left, int height)
{
    const int right = left + 8;
    const QVector<QVector<int>> ground{
        {left, 0, 0}, {right, 0, 0}, {right, 10, 0}, {left, 10, 0}, {left, 0, 0}};
    QVector<QVector<int>> roof = ground;
    QByteArray faces;
    for (int i = 0; i < roof.size(); ++i) {
        roof[i][2] = height;
        if (i > 0) {
            faces += polygon({ground[i - 1], ground[i], roof[i], roof[i - 1], ground[i - 1]});
        }
    }
    return "<bldg:lod1MultiSurface><gml:MultiSurface>" + faces + polygon(roof) +
           "</gml:MultiSurface></bldg:lod1MultiSurface>";
}

QByteArray house(int i)
{
    static const QVector<QByteArray> names{"Lantern House", "Old Dairy",   "Cooper's Yard", "Heron Inn",
                                           "Mill",          "Weigh House", "Ropewalk"};
    static const QVector<QByteArray> owners{"Guild", "Town", "Parish"};
    const int storeys = 1 + (i * 5) % 4;
    return buildingMember(
        "<gml:name>" + names[i % names.size()] + (i < names.size() ? "" : " (rear)") +
            "</gml:name><core:creationDate>20" + number(10 + i) +
            "-03-01</core:creationDate><gen:stringAttribute name=\"owner\"><gen:value>" +
            owners[i % owners.size()] + "</gen:value></gen:stringAttribute><bldg:class>1000</bldg:class>" +
            "<bldg:function>10" + number(10 + i % 3) + "</bldg:function><bldg:function>2040</bldg:function>" +
            "<bldg:yearOfConstruction>" + number(1780 + 13 * i) +
            "</bldg:yearOfConstruction><bldg:measuredHeight uom=\"m\">" + number(storeys * 3 + 2) + '.' +
            number(i % 10) + "</bldg:measuredHeight><bldg:storeysAboveGround>" + number(storeys) +
            "</bldg:storeysAboveGround>" + box(10 * i, storeys * 3 + 2),
        "house-" + number(i + 1));
}

QByteArray street()
{
    QByteArray members;
    for (int i = 0; i < houses; ++i) {
        members += house(i);
    }
    return documentText("<gml:name>Lantern Row</gml:name>" + members);
}

/// A table with new heights and an attribute that the houses do not have, one of whose cells cannot be set.
QByteArray survey()
{
    QByteArray lines = "gml:id,Fields/MeasuredHeight,Fields/StoreysAboveGround,gen:condition\n";
    for (int i = 0; i < rowsOfAHouse; ++i) {
        lines += "house-" + number(i + 1) + ',' + number(5 + i) + ".25," + (i == 2 ? "two" : "2") +
                 (i % 2 == 0 ? ",good\n" : ",to be repaired\n");
    }
    return lines;
}

void takeTable(OpenedWindow& opened, const QString& file)
{
    auto* const dock = opened.window->findChild<QDockWidget*>(QStringLiteral("tableDock"));
    opened.window->resize(1440, 900);
    dock->raise();
    opened.window->resizeDocks({dock}, {420}, Qt::Vertical);
    opened.window->findChild<AttributeTable*>()->showType(QStringLiteral("Building"));
    settle();
    auto* const table = opened.window->findChild<QTableView*>(QStringLiteral("attributeTable"));
    for (int column = 0; column < table->model()->columnCount(); ++column) {
        if (table->model()->headerData(column, Qt::Horizontal).toString() ==
            QLatin1String("MeasuredHeight")) {
            table->sortByColumn(column, Qt::DescendingOrder);
            table->selectColumn(column);
        }
    }
    settle();
    opened.window->grab().save(file);
}

void takeSeveral(OpenedWindow& opened, const QString& file)
{
    opened.window->resize(1440, 620);
    opened.select({QStringLiteral("house-1"), QStringLiteral("house-4"), QStringLiteral("house-7")});
    opened.button("showAbsent")->setChecked(false);
    settle();
    opened.window->findChild<QDockWidget*>(QStringLiteral("propertiesDock"))->grab().save(file);
}

void takeImport(OpenedWindow& opened, const QString& file)
{
    const QString table = opened.path(QStringLiteral("survey.csv"));
    writeFile(table, survey());
    ImportDialog dialog(opened.document(), tables::TableExchange::load(), table, opened.window.get());
    dialog.findChild<QAbstractButton*>(QStringLiteral("createAttributes"))->setChecked(true);
    dialog.open();
    settle();
    dialog.grab().save(file);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const log4cplus::Initializer logging;
    installTranslations(QLocale());
    applyColours(Colours::Light);
    const QDir folder(application.arguments().value(1));
    OpenedWindow opened(QString{});
    const QString document = opened.path(QStringLiteral("lantern-row.gml"));
    writeFile(document, street());
    opened.open(document);
    opened.window->browser().expandAll();
    takeSeveral(opened, folder.filePath(QStringLiteral("several.png")));
    takeTable(opened, folder.filePath(QStringLiteral("table.png")));
    takeImport(opened, folder.filePath(QStringLiteral("import.png")));
    return 0;
}
