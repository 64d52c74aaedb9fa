#pragma once

#include "apps/viewer/edits/PropertyPath.h"

#include <QDialog>

class QListWidget;

namespace tolvik::viewer {

/// Lets the user choose among attributes those that a table shows.
class ColumnsDialog : public QDialog
{
    Q_OBJECT

public:
    ColumnsDialog(const QVector<PropertyPath>& all, const QVector<PropertyPath>& chosen,
                  QWidget* parent = nullptr);

    /// The chosen ones, in the order in which they stood in all of them.
    QVector<PropertyPath> chosen() const;

private:
    void filter(const QString& text);
    void setAll(bool chosen);

    QVector<PropertyPath> paths;
    QListWidget* list;
};

} // namespace tolvik::viewer
