#pragma once

#include "apps/viewer/window/MainWindow.h"

#include <memory>
#include <QAbstractButton>
#include <QAction>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTreeView>

namespace testsupport {

/// A window with a document, in a folder of its own that also takes the settings of the program.
class OpenedWindow
{
public:
    /// \param document file that is copied into the folder and opened; empty for none
    explicit OpenedWindow(const QString& document);
    ~OpenedWindow();

    /// Opens a file and waits until it is there.
    /// \return whether that came
    bool open(const QString& path);
    QString path(const QString& name) const { return folder.filePath(name); }
    QString file() const { return path(QStringLiteral("document.gml")); }

    tolvik::viewer::Document& document() { return window->document(); }
    QTreeView* view(const char* name) const { return window->findChild<QTreeView*>(QLatin1String(name)); }
    QAbstractButton* button(const char* name) const
    {
        return window->findChild<QAbstractButton*>(QLatin1String(name));
    }
    QAction* action(const char* name) const { return window->findChild<QAction*>(QLatin1String(name)); }
    /// Types into the search field, and waits until what was found shows.
    /// \return whether that came
    bool search(const QString& text);
    /// Identifiers of the selected features, sorted.
    QStringList selected();
    /// Row of the feature with an identifier.
    int row(const QString& identifier);
    void select(const QStringList& identifiers);

    /// Has the program keep its files where no other program does, from before its first window.
    static void useFoldersOfTests();
    /// Answers the next message box with a button. To be called before it opens.
    static void answer(int standardButton);

    std::unique_ptr<tolvik::viewer::MainWindow> window;

private:
    QTemporaryDir folder;
};

/// The texts of a column of a view, with blanks in front of them by level, as far as they are expanded.
QStringList shownTexts(const QTreeView& view, int column = 0);

} // namespace testsupport
