#include "support/PanelFixture.h"

#include "apps/common/DocumentReading.h"
#include "apps/viewer/properties/ValueEditors.h"

#include <QtTest>
#include <stdexcept>

namespace testsupport {

PanelFixture::PanelFixture(const QByteArray& xml)
{
    const QString path = directory.filePath("town.gml");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size() || !file.flush()) {
        throw std::runtime_error("the document cannot be written");
    }
    tolvik::apps::DocumentReading reading(path);
    reading.read();
    if (reading.document() == nullptr) {
        throw std::runtime_error(reading.error().toStdString());
    }
    opened.open(reading);
}

gml::AbstractFeatureType& PanelFixture::feature(const std::string& id)
{
    return *opened.model().getFeature(id);
}

void PanelFixture::select(const QStringList& ids)
{
    QItemSelection rows;
    for (const QString& id : ids) {
        const QModelIndex index = opened.model().index(&feature(id.toStdString()));
        rows.select(index, index.sibling(index.row(), 1));
    }
    opened.selection().select(rows, QItemSelectionModel::ClearAndSelect);
    QTest::qWait(10);
}

QByteArray PanelFixture::saved()
{
    const QString former = opened.model().getFileName();
    const QString path = directory.filePath("saved.gml");
    opened.model().saveAs(path, false);
    opened.model().setFileName(former);
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

QModelIndex cellAt(const QAbstractItemView& view, const QString& path, int column)
{
    QModelIndex found;
    for (const QString& step : path.split('/')) {
        const QString name = step.section('[', 0, 0);
        int occurrence = step.contains('[') ? step.section('[', 1).chopped(1).toInt() : 1;
        QModelIndex next;
        for (int row = 0; row < view.model()->rowCount(found) && !next.isValid(); ++row) {
            const QModelIndex child = view.model()->index(row, 0, found);
            if (child.data().toString() == name && --occurrence == 0) {
                next = child;
            }
        }
        if (!next.isValid()) {
            return QModelIndex();
        }
        found = next;
    }
    return found.sibling(found.row(), column);
}

QWidget* openEditor(QAbstractItemView& view, const QModelIndex& cell)
{
    view.setFocus();
    view.setCurrentIndex(cell);
    QTest::keyClick(&view, Qt::Key_F2);
    return editorIn(view);
}

void typeInto(QAbstractItemView& view, const QModelIndex& cell, const QString& text)
{
    QWidget* const editor = openEditor(view, cell);
    if (editor == nullptr) {
        throw std::runtime_error("there is no editor");
    }
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(editor, Qt::Key_Delete);
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
    QTest::qWait(10);
}

QWidget* editorIn(QAbstractItemView& view)
{
    for (QWidget* const child : view.viewport()->findChildren<QWidget*>()) {
        if (child->isVisible() && dynamic_cast<tolvik::viewer::ValueEditor*>(child) != nullptr) {
            return child;
        }
    }
    return nullptr;
}

} // namespace testsupport
