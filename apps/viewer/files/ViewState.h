#pragma once

#include <QSet>
#include <QString>

class QTreeView;

namespace tolvik::viewer {

class Document;

/// What a user has made of the view of a document: hidden, disabled, selected and expanded features and the
/// current one, by identifier. Features without one are not remembered.
class ViewState
{
public:
    /// Remembers the present state.
    /// \param tree over the feature tree of the document
    static ViewState of(Document& document, const QTreeView& tree);

    /// Brings it back as far as the document has features of these identifiers.
    void restore(Document& document, QTreeView& tree) const;

private:
    QSet<QString> hidden, disabled, selected, expanded;
    QString current;
};

} // namespace tolvik::viewer
