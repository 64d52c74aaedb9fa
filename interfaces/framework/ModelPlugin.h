#pragma once

#include "PlatformExport.h"

#include <QString>
#include <QStringList>
#include <QtPlugin>

class QObject;
class QWidget;

namespace tolvik {

class Model;
class TreeNodeProxyModel;

/// One kind of document model, as a plug-in gives it to a program. ModelPlugins finds it.
///
/// The root object of such a plug-in implements this interface, and most often ModelInterface too, which its
/// models then ask. Its metadata has "Name", the same as name(), and "Version", that of the library that it
/// was built with.
class TOLVIK_PLATFORM_EXPORT ModelPlugin
{
public:
    ModelPlugin() = default;
    ModelPlugin(const ModelPlugin&) = delete;
    ModelPlugin& operator=(const ModelPlugin&) = delete;
    virtual ~ModelPlugin();

    /// Kind of the documents, as settings and command lines name it. Never translated.
    virtual QString name() const = 0;

    /// The files that hold such documents, in the form that QFileDialog takes: "Text (*.txt *.text)".
    virtual QStringList fileFilters() const = 0;

    /// \param parent owner of the model, or null
    /// \return a model without a document; owned by the caller where there is no \a parent
    virtual Model* createModel(QObject* parent) = 0;

    /// A tree above a model of this plug-in, which becomes its source.
    /// \param model one that createModel() made; it may die before the tree
    /// \param parent owner of the tree, or null
    /// \return owned by the caller where there is no \a parent; null for a model of another plug-in
    virtual TreeNodeProxyModel* createTreeModel(Model& model, QObject* parent) = 0;

    /// A widget that shows how such documents are presented, and lets the user change it.
    /// \param parent widget that it stands in, or null
    /// \return owned by the caller where there is no \a parent; null if there is nothing to set
    virtual QWidget* createSettingsWidget(QWidget* parent) = 0;
};

} // namespace tolvik

/// Identifies the interface in the metadata of a plug-in. The number grows with each change of it.
#define TOLVIK_MODEL_PLUGIN_IID "tolvik.ModelPlugin/1"
Q_DECLARE_INTERFACE(tolvik::ModelPlugin, TOLVIK_MODEL_PLUGIN_IID)
