#pragma once

#include "scene/AttributeColours.h"

#include <osg/Vec3d>
#include <QWidget>
#include <vector>

namespace tolvik::viewer {

class CityView;

/// What lies over the view and is no part of the city: the legend of the colours, and a line that is
/// measured.
class ViewOverlay : public QWidget
{
    Q_OBJECT

public:
    explicit ViewOverlay(CityView& view);
    ~ViewOverlay() override;

    /// \param title name of the attribute; empty for no legend
    void setLegend(const QString& title, const std::vector<scene::AttributeColours::Entry>& entries);

    /// Begins a line, or ends the one that has begun. A third place begins another one.
    void addPlace(const osg::Vec3d& place);
    void clearPlaces();
    /// Length and height of the line, for the user; empty while there is none.
    QString measure() const;

signals:
    void measured(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void paintLegend(QPainter& painter) const;
    void paintLine(QPainter& painter) const;

    CityView& view;
    QString legendTitle;
    std::vector<scene::AttributeColours::Entry> legend;
    std::vector<osg::Vec3d> places;
};

} // namespace tolvik::viewer
