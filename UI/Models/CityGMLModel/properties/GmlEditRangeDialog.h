#pragma once

#include "framework/EditRangeDialog.h"
#include "UI/Models/CityGMLModel/CityGMLModelExport.h"

namespace tolvik {

class CityGMLViewSettingsWidget;

/// Edits the view settings of a city model: the vector holds the five numbers of a CityGMLViewSettings, in
/// its order.
class CITYGMLMODEL_EXPORT GmlEditRangeDialog : public EditRangeDialog
{
    Q_OBJECT

public:
    /// \param ranges the five numbers; missing ones are those of default settings, and further ones are
    /// ignored
    /// \param parent window that the dialog belongs to, or null
    explicit GmlEditRangeDialog(const QVector<double>& ranges, QWidget* parent = nullptr);
    ~GmlEditRangeDialog() override;

    /// The five numbers as they stand in the dialog, whether it was accepted or not.
    QVector<double> getRanges() override;

private:
    CityGMLViewSettingsWidget* settingsWidget;
};

} // namespace tolvik
