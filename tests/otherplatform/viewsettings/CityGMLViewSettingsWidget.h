#pragma once

#include "viewsettings/CityGMLViewSettings.h"

#include <QWidget>

namespace tolvik {

class CityGMLViewSettingsWidget : public QWidget
{
public:
    using QWidget::QWidget;
    void setSettings(const CityGMLViewSettings& settings) { shown = settings; }
    CityGMLViewSettings settings() const { return shown; }

private:
    CityGMLViewSettings shown;
};

} // namespace tolvik
