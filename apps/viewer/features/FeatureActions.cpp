#include "apps/viewer/features/FeatureActions.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureRows.h"
#include "apps/viewer/features/FeatureTexts.h"

#include <algorithm>
#include <iterator>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

namespace tolvik::viewer {

FeatureActions::FeatureActions(Document& document, QObject* parent) : QObject(parent), document(document)
{
    hide = make(QStringLiteral("hide"), tr("&Hide"), tr("H"), &FeatureActions::hideSelected);
    show = make(QStringLiteral("show"), tr("&Show"), tr("S"), &FeatureActions::showSelected);
    showOnly =
        make(QStringLiteral("showOnly"), tr("Show &Only This"), tr("O"), &FeatureActions::showOnlySelected);
    hideAll =
        make(QStringLiteral("hideAll"), tr("Hide &All"), tr("Ctrl+Shift+H"), &FeatureActions::hideEverything);
    showAll =
        make(QStringLiteral("showAll"), tr("Sho&w All"), tr("Ctrl+Shift+A"), &FeatureActions::showEverything);
    groups.append(nullptr);
    enable = make(QStringLiteral("enable"), tr("&Enable"), QKeySequence(), &FeatureActions::enableSelected);
    disable =
        make(QStringLiteral("disable"), tr("&Disable"), QKeySequence(), &FeatureActions::disableSelected);
    enableAll = make(QStringLiteral("enableAll"), tr("Ena&ble All"), QKeySequence(),
                     &FeatureActions::enableEverything);
    groups.append(nullptr);
    selectSiblings = make(QStringLiteral("selectSiblings"), tr("Select Siblings of Same &Type"),
                          tr("Ctrl+Shift+T"), &FeatureActions::selectLikeSiblings);
    copyIdentifier = make(QStringLiteral("copyIdentifier"), tr("&Copy Identifier"), tr("Ctrl+Shift+C"),
                          &FeatureActions::copyIdentifiers);
    groups.append(nullptr);
    goToReferenced = make(QStringLiteral("goToReferenced"), tr("&Go to Reference"), tr("Ctrl+R"),
                          &FeatureActions::requestReferences);
    findReferring = make(QStringLiteral("findReferring"), tr("Who Re&fers to This?"), tr("Ctrl+Shift+R"),
                         &FeatureActions::requestReferrers);
    groups.append(nullptr);
    remove = make(QStringLiteral("removeFeature"), tr("Re&move Feature"), QKeySequence::Delete,
                  &FeatureActions::requestRemoval);
    connect(&document.selection(), &QItemSelectionModel::selectionChanged, this, &FeatureActions::update);
    connect(&document.selection(), &QItemSelectionModel::currentChanged, this, &FeatureActions::update);
    connect(&document, &Document::opened, this, &FeatureActions::update);
    update();
}

FeatureActions::~FeatureActions() = default;

QAction* FeatureActions::make(const QString& name, const QString& text, const QKeySequence& key,
                              void (FeatureActions::*slot)())
{
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(key);
    // Letters belong to the views of features, and are text elsewhere.
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, slot);
    groups.append(action);
    return action;
}

void FeatureActions::addTo(QMenu& menu) const
{
    for (QAction* const action : groups) {
        if (action == nullptr) {
            menu.addSeparator();
        } else {
            menu.addAction(action);
        }
    }
}

void FeatureActions::popUp(int row, const QPoint& globalPosition)
{
    const bool isSelected = selectedRows(document.selection()).contains(row);
    pointed = isSelected ? -1 : row;
    update();
    QMenu menu;
    addTo(menu);
    menu.exec(globalPosition);
    pointed = -1;
    update();
}

QVector<int> FeatureActions::targets() const
{
    return pointed >= 0 ? QVector<int>{pointed} : selectedRows(document.selection());
}

int FeatureActions::target() const
{
    return pointed >= 0 ? pointed : document.selection().currentIndex().row();
}

QVector<int> FeatureActions::branches() const
{
    return withAllBelow(document, targets());
}

void FeatureActions::update()
{
    const bool hasTarget = pointed >= 0 || document.selection().hasSelection();
    for (QAction* const action : {hide, show, showOnly, enable, disable, copyIdentifier, remove}) {
        action->setEnabled(hasTarget);
    }
    for (QAction* const action : {selectSiblings, goToReferenced, findReferring}) {
        action->setEnabled(target() >= 0);
    }
    for (QAction* const action : {hideAll, showAll, enableAll}) {
        action->setEnabled(document.isOpen());
    }
}

void FeatureActions::hideSelected()
{
    document.model().hide(indexesOf(document, branches()));
}

void FeatureActions::showSelected()
{
    document.model().show(indexesOf(document, branches()));
}

void FeatureActions::showOnlySelected()
{
    CityGMLModel& model = document.model();
    const QVector<int> wanted = branches();
    QList<QModelIndex> wrong;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        if (model.isVisible(index) != std::binary_search(wanted.begin(), wanted.end(), row)) {
            wrong.append(index);
        }
    }
    model.toggleVisibility(wrong);
}

void FeatureActions::hideEverything()
{
    document.model().hideAll();
}

void FeatureActions::showEverything()
{
    document.model().showAll();
}

void FeatureActions::enableSelected()
{
    document.model().enable(indexesOf(document, branches()));
}

void FeatureActions::disableSelected()
{
    document.model().disable(indexesOf(document, branches()));
}

void FeatureActions::enableEverything()
{
    CityGMLModel& model = document.model();
    QList<QModelIndex> disabled;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.isDisabled(model.getFeature(row))) {
            disabled.append(model.index(row, 0));
        }
    }
    model.enable(disabled);
}

void FeatureActions::selectLikeSiblings()
{
    document.tree().selectSiblingsWithSameType();
}

void FeatureActions::copyIdentifiers()
{
    const QVector<int> rows = targets();
    QStringList identifiers;
    for (const int row : rows) {
        identifiers.append(idOf(*document.model().getFeature(row)));
    }
    identifiers.removeAll(QString());
    QGuiApplication::clipboard()->setText(identifiers.join(QLatin1Char('\n')));
}

void FeatureActions::requestReferences()
{
    emit referencesRequested(target());
}

void FeatureActions::requestReferrers()
{
    emit referrersRequested(target());
}

void FeatureActions::requestRemoval()
{
    emit removalRequested(targets());
}

} // namespace tolvik::viewer
