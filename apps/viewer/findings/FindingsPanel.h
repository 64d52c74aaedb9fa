#pragma once

#include "apps/viewer/findings/FindingsReading.h"

#include <QWidget>

class QLabel;
class QTreeView;

namespace tolvik::viewer {

class Document;
class FindingsModel;

/// What is wrong with the open document, as a table that leads to the features: as it was when it was read,
/// and after a save what is wrong with the file that was written.
class FindingsPanel : public QWidget
{
    Q_OBJECT

public:
    /// \param document lives longer
    explicit FindingsPanel(Document& document, QWidget* parent = nullptr);
    ~FindingsPanel() override;

    /// Number of all findings.
    int count() const;

signals:
    /// Other findings are shown.
    void changed();
    void featureRequested(const QString& identifier);

private:
    void showDocument();
    void show(const FindingGroups& groups);

    Document& document;
    FindingsReading saved;
    FindingsModel* findings;
    QLabel* summary;
    QTreeView* view;
};

} // namespace tolvik::viewer
