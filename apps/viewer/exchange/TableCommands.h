#pragma once

#include <QObject>

class QWidget;

namespace tolvik::viewer {

class AttributeTable;
class Document;
class ImportDialog;

/// Brings the attributes of a document into tables, and tables into the document.
class TableCommands : public QObject
{
    Q_OBJECT

public:
    /// \param document lives longer, as do the others
    /// \param shown    the table of attributes, whose type and columns are offered
    /// \param window   in front of which dialogs open
    TableCommands(Document& document, const AttributeTable& shown, QWidget& window);
    ~TableCommands() override;

public slots:
    void exportTable();
    void importTable();

signals:
    /// Something that a user may want to look up later.
    /// \param level as LogModel::Severity
    void told(int level, const QString& text);

private:
    void perform(const ImportDialog& dialog, const QString& name);
    void tell(const QString& done, const QStringList& remarks);

    Document& document;
    const AttributeTable& shown;
    QWidget& window;
};

} // namespace tolvik::viewer
