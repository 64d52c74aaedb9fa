#pragma once

#include "PlatformExport.h"
#include "viewsettings/CityGMLViewSettings.h"

#include <array>
#include <QWidget>

class QDoubleSpinBox;

namespace tolvik {

/// Shows the five numbers of a CityGMLViewSettings, one line each, and lets the user change them.
class TOLVIK_PLATFORM_EXPORT CityGMLViewSettingsWidget : public QWidget
{
    Q_OBJECT

public:
    /// \param parent widget that it stands in, or null
    explicit CityGMLViewSettingsWidget(QWidget* parent = nullptr);
    ~CityGMLViewSettingsWidget() override;

    /// Shows \a settings. A number that a line cannot show (too many decimals, out of its limits) is shown as
    /// near as it can, and is kept as given until the user edits that line.
    void setSettings(const CityGMLViewSettings& settings);

    /// The numbers as set, with the user's edits.
    CityGMLViewSettings settings() const;

private:
    CityGMLViewSettings current;
    std::array<QDoubleSpinBox*, 5> lines{};
};

} // namespace tolvik
