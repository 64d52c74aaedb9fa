#include "apps/viewer/view/ViewOverlay.h"

#include "apps/viewer/view/CityView.h"

#include <algorithm>
#include <cmath>
#include <QEvent>
#include <QPainter>

namespace tolvik::viewer {

namespace {

constexpr int margin = 10;
constexpr int padding = 8;
constexpr int swatch = 14;

} // namespace

ViewOverlay::ViewOverlay(CityView& view) : QWidget(&view), view(view)
{
    setObjectName(QStringLiteral("viewOverlay"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    view.installEventFilter(this);
    connect(&view, &CityView::cameraChanged, this, qOverload<>(&QWidget::update));
    setGeometry(view.rect());
}

ViewOverlay::~ViewOverlay() = default;

bool ViewOverlay::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        setGeometry(view.rect());
    }
    return QWidget::eventFilter(watched, event);
}

void ViewOverlay::setLegend(const QString& title, const std::vector<scene::AttributeColours::Entry>& entries)
{
    legendTitle = title;
    legend = entries;
    update();
}

void ViewOverlay::addPlace(const osg::Vec3d& place)
{
    if (places.size() == 2) {
        places.clear();
    }
    places.push_back(place);
    update();
    if (places.size() == 2) {
        emit measured(measure());
    }
}

void ViewOverlay::clearPlaces()
{
    places.clear();
    update();
}

QString ViewOverlay::measure() const
{
    if (places.size() < 2) {
        return QString();
    }
    const osg::Vec3d way = places[1] - places[0];
    //: A measured line: its length, its length on the ground, and how far it leads up or down
    return tr("Distance %L1, on the ground %L2, height %L3")
        .arg(way.length(), 0, 'f', 2)
        .arg(std::hypot(way.x(), way.y()), 0, 'f', 2)
        .arg(way.z(), 0, 'f', 2);
}

void ViewOverlay::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!places.empty()) {
        paintLine(painter);
    }
    if (!legendTitle.isEmpty()) {
        paintLegend(painter);
    }
}

void ViewOverlay::paintLine(QPainter& painter) const
{
    painter.setPen(QPen(QColor(200, 0, 60), 2));
    painter.setBrush(QColor(200, 0, 60));
    for (const osg::Vec3d& place : places) {
        painter.drawEllipse(view.placeOf(place), 4, 4);
    }
    if (places.size() == 2) {
        painter.drawLine(view.placeOf(places[0]), view.placeOf(places[1]));
        const QPointF middle = (view.placeOf(places[0]) + view.placeOf(places[1])) / 2;
        const QString text = measure();
        const QFontMetrics metrics = painter.fontMetrics();
        QRectF box(0, 0, metrics.horizontalAdvance(text) + padding, metrics.height() + 4);
        box.moveCenter(middle - QPointF(0, 16));
        painter.fillRect(box, QColor(255, 255, 255, 220));
        painter.setPen(Qt::black);
        painter.drawText(box, Qt::AlignCenter, text);
    }
}

void ViewOverlay::paintLegend(QPainter& painter) const
{
    const QFontMetrics metrics = painter.fontMetrics();
    const int line = std::max(metrics.height(), swatch) + 4;
    std::vector<QString> texts;
    int width = metrics.horizontalAdvance(legendTitle);
    for (const auto& entry : legend) {
        //: An entry of the legend: a value, and the number of features that have it
        texts.push_back(
            tr("%1 (%L2)").arg(metrics.elidedText(entry.text, Qt::ElideRight, 220)).arg(entry.count));
        width = std::max(width, swatch + padding + metrics.horizontalAdvance(texts.back()));
    }
    const int height = line * (static_cast<int>(legend.size()) + 1);
    const QRect box(margin, margin, width + 2 * padding, height + 2 * padding);
    painter.setPen(QColor(120, 120, 120));
    painter.setBrush(QColor(255, 255, 255, 225));
    painter.drawRoundedRect(box, 4, 4);
    painter.setPen(Qt::black);
    int y = box.top() + padding;
    painter.drawText(box.left() + padding, y, width, line, Qt::AlignVCenter, legendTitle);
    for (std::size_t i = 0; i < legend.size(); ++i) {
        y += line;
        painter.fillRect(box.left() + padding, y + (line - swatch) / 2, swatch, swatch, legend[i].colour);
        painter.drawText(box.left() + 2 * padding + swatch, y, width, line, Qt::AlignVCenter, texts[i]);
    }
}

} // namespace tolvik::viewer
