#pragma once

#include "apps/viewer/features/SlicedWork.h"

#include <QString>
#include <QVector>

namespace tolvik::viewer {

class Document;

/// A reference of one feature to another one, or to something elsewhere.
struct FeatureReference
{
    QString member; ///< name of the element that refers
    QString target; ///< as the document says it
    int row = -1;   ///< of the feature referred to, or around the object referred to; -1 if there is none
};

/// The references of the feature of a row to other features and to places elsewhere, each once.
QVector<FeatureReference> referencesOf(Document& document, int row);

/// Looks for the features that refer to one, or to an object in it, in slices.
class ReferrerSearch : public QObject
{
    Q_OBJECT

public:
    /// \param document lives longer
    explicit ReferrerSearch(Document& document, QObject* parent = nullptr);
    ~ReferrerSearch() override;

    /// Begins to look; a search that goes on is given up.
    void start(int row);

signals:
    /// \param row       of the feature that was asked for
    /// \param referring rows of the features that refer to it, in ascending order
    void found(int row, const QVector<int>& referring);

private:
    Document& document;
    SlicedWork work;
    QVector<int> referring;
};

} // namespace tolvik::viewer
