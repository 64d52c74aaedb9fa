#include "Window.h"

#include <log4cplus/initializer.h>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

namespace {

QModelIndex find(const QTreeView& view, const QString& text)
{
    const QModelIndexList found = view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, text, 1,
                                                      Qt::MatchExactly | Qt::MatchRecursive);
    return found.value(0);
}

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

const char document[] =
    "<CityModel xmlns='http://www.opengis.net/citygml/2.0' xmlns:gml='http://www.opengis.net/gml'\n"
    "    xmlns:bldg='http://www.opengis.net/citygml/building/2.0'>\n"
    "<cityObjectMember><bldg:Building gml:id='b1'><gml:name>Town hall</gml:name>\n"
    "<bldg:measuredHeight uom='m'>12.5</bldg:measuredHeight></bldg:Building></cityObjectMember>\n"
    "</CityModel>\n";

} // namespace

class WindowTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir folder;
    QString path;

private slots:
    void initTestCase()
    {
        path = folder.filePath("town.gml");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(document);
    }

    void aHeightIsEditedAndSaved()
    {
        Window window;
        window.show();
        QVERIFY(window.load(path));
        const QModelIndex building = find(*window.featureView, "Town hall");
        QVERIFY(building.isValid());
        window.featureView->setCurrentIndex(building);
        const QModelIndex height = find(*window.propertyView, "MeasuredHeight").siblingAtColumn(1);
        QCOMPARE(height.data().toDouble(), 12.5);
        QVERIFY(window.propertyView->model()->setData(height, 20.25));
        QVERIFY(window.saveAs(folder.filePath("new.gml")));
        const QString saved = textOf(folder.filePath("new.gml"));
        QVERIFY2(saved.contains(">20.25<") && !saved.contains(">12.5<"), qPrintable(saved));
    }

    void aBrokenDocumentLeavesTheOpenOne()
    {
        Window window;
        QVERIFY(window.load(path));
        const QString broken = folder.filePath("broken.gml");
        QFile file(broken);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<CityModel>");
        file.close();
        QVERIFY(!window.load(broken));
        QVERIFY(!window.load(folder.filePath("missing.gml")));
        QVERIFY(find(*window.featureView, "Town hall").isValid());
    }
};

int main(int argc, char** argv)
{
    log4cplus::Initializer logging;
    QApplication application(argc, argv);
    WindowTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "windowtest.moc"
