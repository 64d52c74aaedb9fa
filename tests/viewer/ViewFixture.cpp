#include "viewer/ViewFixture.h"

#include "apps/common/DocumentReading.h"

#include <QSignalSpy>
#include <QtTest>

namespace testsupport {

using namespace tolvik;
using namespace tolvik::viewer;

void ViewFixture::show(const QSize& size)
{
    document = std::make_unique<viewer::Document>();
    panel = std::make_unique<ViewPanel>(*document);
    panel->resize(size);
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
    view = panel->view();
    QVERIFY(view != nullptr);
    QVERIFY2(view->error().isEmpty(), qPrintable(view->error()));
}

void ViewFixture::end()
{
    panel.reset();
    document.reset();
}

void ViewFixture::open(const QString& path)
{
    apps::DocumentReading reading(path);
    reading.read();
    QVERIFY2(reading.document() != nullptr, qPrintable(reading.error()));
    document->open(reading);
    panel->link()->finish();
    // The tools take their sizes.
    QCoreApplication::processEvents();
    view->fitAll();
}

void ViewFixture::beginToOpen(const QString& path)
{
    apps::DocumentReading reading(path);
    reading.read();
    QVERIFY2(reading.document() != nullptr, qPrintable(reading.error()));
    document->open(reading);
    QSignalSpy shown(panel->link(), &SceneLink::changed);
    while (shown.isEmpty() && panel->link()->isBusy()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }
}

QImage ViewFixture::picture()
{
    return view->grabFramebuffer();
}

QColor ViewFixture::colourAt(const QImage& picture, const QPoint& place) const
{
    const QPointF pixel = (QPointF(place) + QPointF(0.5, 0.5)) * view->devicePixelRatioF();
    return picture.pixelColor(static_cast<int>(pixel.x()), static_cast<int>(pixel.y()));
}

QPoint ViewFixture::placeOfSomething(int* row)
{
    for (int y = 20; y < view->height(); y += 7) {
        for (int x = 20; x < view->width(); x += 7) {
            const int found = rowAt(QPoint(x, y));
            if (found >= 0 && rowAt(QPoint(x + 3, y + 3)) == found) {
                if (row != nullptr) {
                    *row = found;
                }
                return QPoint(x, y);
            }
        }
    }
    return QPoint();
}

int ViewFixture::rowAt(const QPoint& place)
{
    const scene::Slot slot = view->hitAt(place).slot;
    return slot != scene::noSlot ? panel->link()->rowOf(slot) : -1;
}

QVector<QPoint> ViewFixture::grid(int columns, int rows) const
{
    QVector<QPoint> places;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            places << QPoint((2 * column + 1) * view->width() / (2 * columns),
                             (2 * row + 1) * view->height() / (2 * rows));
        }
    }
    return places;
}

QModelIndex ViewFixture::treeIndex(int row)
{
    return document->tree().mapFromSource(document->model().index(row, 0));
}

} // namespace testsupport
