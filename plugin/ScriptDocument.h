#pragma once

#include "UI/Models/CityGMLModel/CityGMLFeatureList.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"

#include <QObject>
#include <QString>

namespace tolvik {

/// A document for scripts and QML, which know no classes of the library: it is reached by the names of its
/// properties and operations, and what it holds by the roles of its models.
class ScriptDocument : public QObject
{
    Q_OBJECT
    /// The features as a list: a CityGMLFeatureList.
    Q_PROPERTY(QObject* features READ features CONSTANT)
    /// The features as a tree: a CityGMLTreeModel.
    Q_PROPERTY(QObject* tree READ tree CONSTANT)
    /// Why the last operation failed; empty if it did not.
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)

public:
    /// \param plugin where the model asks, see CityGMLModel
    /// \param parent owns the document, or null
    explicit ScriptDocument(ModelInterface* plugin, QObject* parent = nullptr);

    /// Reads a document in place of the present one, which stays if that fails.
    /// \return whether it was read; if not, error() tells why
    Q_INVOKABLE bool load(const QString& path);

    /// Writes the document to a file.
    /// \return whether it was written; if not, error() tells why
    Q_INVOKABLE bool saveAs(const QString& path);

    QObject* features() { return &list; }
    QObject* tree() { return &treeModel; }
    const QString& error() const { return reason; }

signals:
    void errorChanged();

private:
    bool end(const QString& error);

    CityGMLModel model;
    CityGMLFeatureList list;
    CityGMLTreeModel treeModel;
    QString reason;
};

} // namespace tolvik
