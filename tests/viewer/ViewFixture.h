#pragma once

#include "apps/viewer/document/Document.h"
#include "apps/viewer/view/CityView.h"
#include "apps/viewer/view/SceneLink.h"
#include "apps/viewer/view/ViewPanel.h"

#include <memory>
#include <QImage>
#include <QObject>

namespace testsupport {

/// A test of the view of a document on a display. Mouse positions are those of the widget, pictures are in
/// pixels.
class ViewFixture : public QObject
{
protected:
    /// Shows the view, without a document.
    void show(const QSize& size);
    /// Ends the view and its document.
    void end();
    /// Opens a document, and waits until all of it is seen.
    void open(const QString& path);
    /// Opens a document, and does a little of what the view has to do for it.
    void beginToOpen(const QString& path);

    QImage picture();
    /// The colour of the pixel at a place.
    QColor colourAt(const QImage& picture, const QPoint& place) const;
    /// A place where a feature is seen, far enough from the edges of its picture.
    QPoint placeOfSomething(int* row = nullptr);
    /// The row of the feature that is seen at a place; -1 for none.
    int rowAt(const QPoint& place);
    /// Places at even distances all over the view.
    QVector<QPoint> grid(int columns, int rows) const;
    QModelIndex treeIndex(int row);

    std::unique_ptr<tolvik::viewer::Document> document;
    std::unique_ptr<tolvik::viewer::ViewPanel> panel;
    tolvik::viewer::CityView* view = nullptr;
};

} // namespace testsupport
