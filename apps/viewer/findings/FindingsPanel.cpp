#include "apps/viewer/findings/FindingsPanel.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/findings/FindingsModel.h"

#include <limits>
#include <QHeaderView>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace tolvik::viewer {

FindingsPanel::FindingsPanel(Document& document, QWidget* parent)
    : QWidget(parent), document(document), findings(new FindingsModel(this)), summary(new QLabel),
      view(new QTreeView)
{
    auto* const sorted = new QSortFilterProxyModel(this);
    sorted->setSourceModel(findings);
    view->setObjectName(QStringLiteral("findings"));
    view->setAccessibleName(tr("Findings"));
    view->setModel(sorted);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->header()->setSortIndicator(-1, Qt::AscendingOrder);
    view->setSortingEnabled(true);
    view->setColumnWidth(FindingsModel::Line, 70);
    view->setColumnWidth(FindingsModel::Reason, 420);
    view->setColumnWidth(FindingsModel::Path, 300);
    summary->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(summary);
    layout->addWidget(view);

    const auto request = [this](const QModelIndex& index) {
        const QString identifier = index.data(FindingsModel::IdentifierRole).toString();
        if (!identifier.isEmpty()) {
            emit featureRequested(identifier);
        }
    };
    connect(view, &QTreeView::clicked, this, request);
    connect(view, &QTreeView::activated, this, request);
    connect(&document, &Document::opened, this, &FindingsPanel::showDocument);
    connect(&document, &Document::saved, this, [this] { saved.start(this->document.fileName()); });
    connect(&saved, &FindingsReading::found, this, &FindingsPanel::show);
    showDocument();
}

FindingsPanel::~FindingsPanel() = default;

int FindingsPanel::count() const
{
    return static_cast<int>(std::min<std::uint64_t>(
        findings->count(), static_cast<std::uint64_t>(std::numeric_limits<int>::max())));
}

void FindingsPanel::showDocument()
{
    saved.stop();
    show(document.isOpen() ? citygml::findingsOf(*document.model().cityGML()) : FindingGroups());
}

void FindingsPanel::show(const FindingGroups& groups)
{
    findings->show(groups);
    summary->setText(
        count() == 0 ? tr("Nothing was found wrong with the document.")
                     : tr("%Ln place(s) where the document is not as its schema asks.", nullptr, count()));
    emit changed();
}

} // namespace tolvik::viewer
