#pragma once

#include <QWidget>

class QLabel;
class QTreeView;

namespace tolvik::viewer {

class Document;
class FindingsModel;

/// What is wrong with the open document, as a table that leads to the features.
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
    void featureRequested(const QString& identifier);

private:
    void showDocument();

    Document& document;
    FindingsModel* findings;
    QLabel* summary;
    QTreeView* view;
};

} // namespace tolvik::viewer
