#include "viewsettings/CityGMLViewSettingsWidget.h"

#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QSignalBlocker>

namespace tolvik {

namespace {

struct Line
{
    const char* label;
    double CityGMLViewSettings::*number;
};

// In the order of the record.
constexpr std::array<Line, 5> lineTable{{
    {QT_TRANSLATE_NOOP("tolvik::CityGMLViewSettingsWidget", "Level of detail 0 up to"),
     &CityGMLViewSettings::lod0Range},
    {QT_TRANSLATE_NOOP("tolvik::CityGMLViewSettingsWidget", "Level of detail 1 up to"),
     &CityGMLViewSettings::lod1Range},
    {QT_TRANSLATE_NOOP("tolvik::CityGMLViewSettingsWidget", "Level of detail 2 up to"),
     &CityGMLViewSettings::lod2Range},
    {QT_TRANSLATE_NOOP("tolvik::CityGMLViewSettingsWidget", "Level of detail 3 up to"),
     &CityGMLViewSettings::lod3Range},
    {QT_TRANSLATE_NOOP("tolvik::CityGMLViewSettingsWidget", "Level of detail 4 up to"),
     &CityGMLViewSettings::lod4Range},
}};

constexpr double largestRange = 1e9;
constexpr double stepMetres = 100.0;

} // namespace

CityGMLViewSettingsWidget::CityGMLViewSettingsWidget(QWidget* parent) : QWidget(parent)
{
    auto* const layout = new QFormLayout;
    setLayout(layout);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        auto* const box = new QDoubleSpinBox(this);
        box->setRange(0.0, largestRange);
        box->setDecimals(2);
        box->setSingleStep(stepMetres);
        box->setSuffix(tr(" m"));
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this, i](double value) { current.*lineTable[i].number = value; });
        layout->addRow(tr(lineTable[i].label), box);
        lines[i] = box;
    }
    setSettings(CityGMLViewSettings());
}

CityGMLViewSettingsWidget::~CityGMLViewSettingsWidget() = default;

void CityGMLViewSettingsWidget::setSettings(const CityGMLViewSettings& settings)
{
    current = settings;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const QSignalBlocker keepNumberAsGiven(lines[i]);
        lines[i]->setValue(current.*lineTable[i].number);
    }
}

CityGMLViewSettings CityGMLViewSettingsWidget::settings() const
{
    return current;
}

} // namespace tolvik
