#pragma once

#include <QMainWindow>

class QTreeView;

namespace tolvik::viewer {

class Document;

/// One window with one document.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    Document& document() { return *shown; }

    /// Reads a document and shows it.
    void open(const QString& path);

private:
    void makePanels();
    QDockWidget* addPanel(const QString& title, const QString& name, QWidget* content,
                          Qt::DockWidgetArea area);

    Document* shown;
};

} // namespace tolvik::viewer
