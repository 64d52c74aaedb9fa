#pragma once

#include "citygml/CityGMLPlugin.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"
#include "UI/Models/CityGMLModel/FeaturePropertyModel.h"

#include <QMainWindow>

class QTreeView;

/// Shows a document: its features on the left, the properties of the current one on the right.
class Window : public QMainWindow
{
public:
    Window();

    /// \return whether the document was read
    bool load(const QString& path);
    /// \return whether it was written; the user has been told if not
    bool saveAs(const QString& path);

    // The models come before the views, which must go first.
private:
    tolvik::CityGMLPlugin plugin;
    tolvik::CityGMLModel model{&plugin, nullptr};
    tolvik::CityGMLTreeModel tree;
    tolvik::FeaturePropertyModel properties;

public:
    QTreeView* const featureView;
    QTreeView* const propertyView;
};
