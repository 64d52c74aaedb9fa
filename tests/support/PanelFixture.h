#pragma once

#include "apps/viewer/document/Document.h"

#include <QAbstractItemView>
#include <QTemporaryDir>

namespace testsupport {

/// A document as a window of the desktop program has it, read from a file, for tests of panels.
class PanelFixture
{
public:
    /// \param xml text of the document
    explicit PanelFixture(const QByteArray& xml);

    tolvik::viewer::Document& document() { return opened; }
    /// The feature of an identifier.
    gml::AbstractFeatureType& feature(const std::string& id);
    /// Selects the features of these identifiers, and lets the panels show them.
    void select(const QStringList& ids);
    /// What a save writes now.
    QByteArray saved();

private:
    QTemporaryDir directory;
    tolvik::viewer::Document opened;
};

/// The cell in column \a column of the row that names lead to, such as `Fields/Class` or `Fields/Note[2]`.
QModelIndex cellAt(const QAbstractItemView& view, const QString& path, int column = 1);

/// Opens the editor of a cell by the keyboard.
/// \return null where there is none
QWidget* openEditor(QAbstractItemView& view, const QModelIndex& cell);

/// Opens the editor of a cell, types over what is in it and presses Enter.
void typeInto(QAbstractItemView& view, const QModelIndex& cell, const QString& text);

/// The editor that is open in a view; null where there is none.
QWidget* editorIn(QAbstractItemView& view);

} // namespace testsupport
