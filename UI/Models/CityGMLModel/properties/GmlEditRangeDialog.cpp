#include "UI/Models/CityGMLModel/properties/GmlEditRangeDialog.h"

#include "viewsettings/CityGMLViewSettingsWidget.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace tolvik {

namespace {

constexpr int layoutGap = 3;

constexpr double CityGMLViewSettings::*const settingsInOrder[] = {
    &CityGMLViewSettings::lod0Range, &CityGMLViewSettings::lod1Range, &CityGMLViewSettings::lod2Range,
    &CityGMLViewSettings::lod3Range, &CityGMLViewSettings::lod4Range,
};

} // namespace

GmlEditRangeDialog::GmlEditRangeDialog(const QVector<double>& ranges, QWidget* parent)
    : EditRangeDialog(ranges, parent), settingsWidget(nullptr)
{
    auto* layout = new QVBoxLayout;
    layout->setSpacing(layoutGap);
    layout->setContentsMargins(layoutGap, layoutGap, layoutGap, layoutGap);

    settingsWidget = new CityGMLViewSettingsWidget(this);
    CityGMLViewSettings settings;
    auto given = ranges.begin();
    for (auto setting : settingsInOrder) {
        if (given == ranges.end()) {
            break;
        }
        settings.*setting = *given++;
    }
    settingsWidget->setSettings(settings);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    layout->addWidget(settingsWidget);
    layout->addWidget(buttons);
    setLayout(layout);
}

GmlEditRangeDialog::~GmlEditRangeDialog() = default;

QVector<double> GmlEditRangeDialog::getRanges()
{
    const CityGMLViewSettings settings = settingsWidget->settings();
    QVector<double> ranges;
    ranges.reserve(static_cast<int>(std::size(settingsInOrder)));
    for (auto setting : settingsInOrder) {
        ranges.append(settings.*setting);
    }
    return ranges;
}

} // namespace tolvik
