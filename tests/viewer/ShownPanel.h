#pragma once

#include "apps/viewer/properties/PropertyPanel.h"
#include "support/PanelFixture.h"

#include <QByteArray>
#include <QLabel>
#include <QMap>
#include <QToolButton>
#include <QTreeView>
#include <QtTest>

namespace testsupport {

/// Attributes of many kinds, for a building.
inline const QByteArray manyAttributes =
    "<gml:description>Bank</gml:description><gml:name codeSpace=\"town\">Town hall</gml:name>"
    "<core:creationDate>2001-02-03</core:creationDate>"
    "<core:relativeToTerrain>entirelyAboveTerrain</core:relativeToTerrain>"
    "<gen:stringAttribute name=\"owner\"><gen:value>Guild</gen:value></gen:stringAttribute>"
    "<gen:doubleAttribute name=\"ratio\"><gen:value>1.5</gen:value></gen:doubleAttribute>"
    "<gen:uriAttribute name=\"photo\"><gen:value>https://town.example/1</gen:value></gen:uriAttribute>"
    "<bldg:class>1000</bldg:class><bldg:function>1</bldg:function><bldg:function>2</bldg:function>"
    "<bldg:yearOfConstruction>1904</bldg:yearOfConstruction>"
    "<bldg:measuredHeight uom=\"m\">12.5</bldg:measuredHeight>"
    "<bldg:storeysAboveGround>3</bldg:storeysAboveGround>"
    "<bldg:storeyHeightsAboveGround uom=\"m\">3.2 3</bldg:storeyHeightsAboveGround>";

/// The panel over a document.
class ShownPanel
{
public:
    explicit ShownPanel(const QByteArray& xml, const QStringList& selected = {"b"})
        : fixture(xml), panel(fixture.document())
    {
        panel.resize(500, 700);
        panel.show();
        panel.activateWindow();
        fixture.select(selected);
    }

    QTreeView& view() { return *panel.findChild<QTreeView*>("propertyTree"); }
    QModelIndex cell(const QString& path, int column = 1) { return cellAt(view(), path, column); }
    QString text(const QString& path, int column = 1) { return cell(path, column).data().toString(); }
    void type(const QString& path, const QString& text) { typeInto(view(), cell(path), text); }
    QString message()
    {
        const auto* const label = panel.findChild<QLabel*>("propertyMessage");
        return label->isVisible() ? label->text() : QString();
    }
    void showAbsent() { panel.findChild<QToolButton*>("showAbsent")->click(); }
    void press(const QString& path, Qt::Key key)
    {
        view().setFocus();
        view().setCurrentIndex(cell(path));
        QTest::keyClick(&view(), key);
        QTest::qWait(10);
    }
    QUndoStack& stack() { return fixture.document().undoStack(); }
    void undo()
    {
        stack().undo();
        QTest::qWait(10);
    }
    QByteArray saved() { return fixture.saved(); }

    PanelFixture fixture;
    tolvik::viewer::PropertyPanel panel;
};

/// Answers the next dialog: types into its fields, which are named by their objects, and accepts it. The name
/// of the only field may be empty.
void answerDialog(const QMap<QString, QString>& fields);

} // namespace testsupport
