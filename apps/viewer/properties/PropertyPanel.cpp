#include "apps/viewer/properties/PropertyPanel.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureRows.h"
#include "apps/viewer/features/FeatureTexts.h"
#include "apps/viewer/properties/AttributeDialog.h"
#include "apps/viewer/properties/PropertyFilterModel.h"
#include "apps/viewer/properties/PropertyTreeModel.h"
#include "apps/viewer/properties/PropertyView.h"
#include "apps/viewer/properties/ValueDelegate.h"
#include "apps/viewer/properties/ValueRoles.h"
#include "gml/AbstractFeatureType.hxx"

#include <QApplication>
#include <QClipboard>
#include <QHash>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

namespace tolvik::viewer {

namespace {

QString textListName(const QString& element)
{
    return element.at(0).toUpper() + element.mid(1);
}

/// The text of a cell, of a long list too.
QString wholeTextOf(const QModelIndex& cell)
{
    const QVariant value = cell.data(ValueRole);
    return value.isValid() ? ValueText().textOf(value) : cell.data().toString();
}

/// Whether it is a generic attribute or a set of them, which the features can do without.
bool canBeRenamed(const PropertyNode& node)
{
    return node.isGenericAttribute() || node.isAttributeSet;
}

} // namespace

PropertyPanel::PropertyPanel(Document& document, QWidget* parent)
    : QWidget(parent), document(document), properties(new PropertyTreeModel(this)),
      filter(new PropertyFilterModel(this)), view(new PropertyView),
      delegate(new ValueDelegate(
          [this](const QModelIndex& index, const QVariant& value) {
              const PropertyNode* const node = properties->node(filter->mapToSource(index));
              const bool isUnit = index.column() == PropertyTreeModel::UnitColumn;
              return edit(isUnit ? PropertyEdit::SetUnit : PropertyEdit::SetValue,
                          {MemberPlace::Property, node->path()}, value);
          },
          this)),
      title(new QLabel), filterLine(new QLineEdit), absentButton(new QToolButton), addMenu(new QMenu(this)),
      message(new QLabel)
{
    filter->setSourceModel(properties);
    makeHeader();
    makeView();
    follow();
}

PropertyPanel::~PropertyPanel()
{
    // An editor that is open enters what it holds as long as it can.
    hide();
}

void PropertyPanel::makeHeader()
{
    title->setObjectName(QStringLiteral("propertyTitle"));
    title->setTextInteractionFlags(Qt::TextSelectableByMouse);
    title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    filterLine->setObjectName(QStringLiteral("propertyFilter"));
    filterLine->setPlaceholderText(tr("Filter properties"));
    filterLine->setAccessibleName(tr("Filter properties"));
    filterLine->setClearButtonEnabled(true);
    absentButton->setObjectName(QStringLiteral("showAbsent"));
    absentButton->setText(tr("Absent"));
    absentButton->setToolTip(tr("Show the attributes that the features do not have"));
    absentButton->setCheckable(true);
    auto* const addButton = new QToolButton;
    addButton->setObjectName(QStringLiteral("addProperty"));
    addButton->setText(tr("Add"));
    addButton->setToolTip(tr("Add an attribute or an entry of a list"));
    addButton->setPopupMode(QToolButton::InstantPopup);
    addButton->setMenu(addMenu);
    message->setObjectName(QStringLiteral("propertyMessage"));
    message->setWordWrap(true);
    message->setFrameStyle(QFrame::StyledPanel);
    message->hide();

    auto* const tools = new QHBoxLayout;
    tools->addWidget(filterLine);
    tools->addWidget(absentButton);
    tools->addWidget(addButton);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(title);
    layout->addLayout(tools);
    layout->addWidget(view);
    layout->addWidget(message);
    connect(filterLine, &QLineEdit::textChanged, this, [this](const QString& text) {
        filter->setText(text);
        view->expandAll();
    });
    connect(absentButton, &QToolButton::toggled, this, [this](bool shown) {
        filter->setAbsentShown(shown);
        view->expandAll();
    });
    connect(addMenu, &QMenu::aboutToShow, this, &PropertyPanel::fillAddMenu);
}

void PropertyPanel::makeView()
{
    view->setObjectName(QStringLiteral("propertyTree"));
    view->setAccessibleName(tr("Properties"));
    view->setModel(filter);
    view->setItemDelegate(delegate);
    view->header()->resizeSection(PropertyTreeModel::NameColumn, 190);
    view->header()->setSectionResizeMode(PropertyTreeModel::ValueColumn, QHeaderView::Stretch);
    view->header()->resizeSection(PropertyTreeModel::UnitColumn, 60);
    setFocusProxy(view);
    connect(view, &PropertyView::removalRequested, this, &PropertyPanel::removeCurrent);
    connect(view, &QWidget::customContextMenuRequested, this, &PropertyPanel::showContextMenu);
    connect(delegate, &ValueDelegate::refused, this, &PropertyPanel::tell);
    connect(delegate, &ValueDelegate::entered, this, [this] { tell(QString()); });
    connect(delegate, &ValueDelegate::linkActivated, this, &PropertyPanel::linkActivated);
    // Groups are open from the start, as most of them are short.
    connect(filter, &QAbstractItemModel::rowsInserted, this, &PropertyPanel::refreshExpansion);
}

/// Shows what is selected, and follows its edits.
void PropertyPanel::follow()
{
    refreshTimer.setSingleShot(true);
    refreshTimer.setInterval(0);
    connect(&refreshTimer, &QTimer::timeout, this, &PropertyPanel::refresh);
    connect(&document.selection(), &QItemSelectionModel::selectionChanged, this, &PropertyPanel::refreshSoon);
    connect(&document.model(), &QAbstractItemModel::rowsRemoved, this, &PropertyPanel::refreshSoon);
    connect(&document.model(), &QAbstractItemModel::modelReset, this, &PropertyPanel::refreshSoon);
    connect(&document.model(), &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex&, const QModelIndex&, const QVector<int>& roles) {
                // Only edits of properties come with this role, and not those of the visibility.
                if (roles.contains(Qt::UserRole)) {
                    refreshSoon();
                }
            });
    connect(&document.editRunner(), &EditRunner::begun, this, [this] {
        reading.stop();
        refreshTimer.stop();
    });
    connect(&document.editRunner(), &EditRunner::ended, this, [this](const QString& refusal) {
        refreshSoon();
        if (!refusal.isEmpty()) {
            tell(refusal);
        }
    });
    connect(&document, &Document::aboutToBeOpened, this, [this] {
        reading.stop();
        properties->setTree(nullptr);
    });
}

void PropertyPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refreshSoon();
}

bool PropertyPanel::isComplete() const
{
    return !reading.isRunning() && !refreshTimer.isActive() && !document.editRunner().isRunning();
}

/// Nothing is read as long as nobody looks, nor while an edit of many features is under way.
void PropertyPanel::refreshSoon()
{
    reading.stop();
    if (isVisible() && !document.editRunner().isRunning()) {
        refreshTimer.start();
    }
}

void PropertyPanel::refresh()
{
    rowsToRead = selectedRows(document.selection());
    merged.reset();
    if (rowsToRead.size() <= 1) {
        for (const int row : qAsConst(rowsToRead)) {
            readFeature(row);
        }
        showAll();
        return;
    }
    title->setText(tr("Reading %n feature(s)\u2026", nullptr, rowsToRead.size()));
    reading.start(
        rowsToRead.size(), [this](int step) { readFeature(rowsToRead[step]); }, [this] { showAll(); });
}

void PropertyPanel::readFeature(int row)
{
    gml::AbstractFeatureType* const feature = document.model().getFeature(row);
    if (feature == nullptr) {
        return;
    }
    if (merged == nullptr) {
        merged = readProperties(document.model(), *feature);
    } else {
        mergeProperties(*merged, *readValues(document.model(), *feature));
    }
}

void PropertyPanel::showAll()
{
    properties->setTree(std::move(merged));
    title->setText(titleOf(selectedFeatures()));
    title->setToolTip(title->text());
}

/// Opens groups that have just come.
void PropertyPanel::refreshExpansion(const QModelIndex& parent, int first, int last)
{
    view->expand(parent);
    for (int row = first; row <= last; ++row) {
        view->expandRecursively(filter->index(row, 0, parent));
    }
}

void PropertyPanel::removeCurrent()
{
    const PropertyNode* const node = currentNode();
    if (node == nullptr || !(node->isBound || node->isAttributeSet)) {
        return;
    }
    const PropertyEdit::Action action =
        canBeRenamed(*node) ? PropertyEdit::RemoveAttribute : PropertyEdit::MakeAbsent;
    editOrTell(action, {MemberPlace::Property, node->path()}, QVariant());
}

void PropertyPanel::addAttribute()
{
    const PropertyNode* const node = currentNode();
    const PropertyPath set = node != nullptr && node->isAttributeSet ? node->path() : PropertyPath();
    AttributeDialog dialog(this);
    if (dialog.exec() == QDialog::Accepted) {
        editOrTell(PropertyEdit::AddAttribute, {MemberPlace::GenericAttributes, set}, dialog.attribute());
    }
}

void PropertyPanel::renameCurrent()
{
    const PropertyNode* const node = currentNode();
    if (node == nullptr || !canBeRenamed(*node)) {
        return;
    }
    const MemberPlace place{MemberPlace::Property, node->path()};
    bool isAccepted = false;
    const QString name = QInputDialog::getText(this, tr("Rename the Attribute"), tr("Name:"),
                                               QLineEdit::Normal, node->step.name, &isAccepted);
    if (isAccepted && !name.isEmpty() && name != place.path.last().name) {
        editOrTell(PropertyEdit::RenameAttribute, place, name);
    }
}

void PropertyPanel::addEntry(const QString& list, int occurrence)
{
    bool isAccepted = false;
    const QString text = QInputDialog::getText(this, tr("Add to %1").arg(textListName(list)), tr("Entry:"),
                                               QLineEdit::Normal, QString(), &isAccepted);
    if (isAccepted) {
        editOrTell(PropertyEdit::AddEntry, {MemberPlace::TextList, {{list, occurrence}}}, text);
    }
}

void PropertyPanel::fillAddMenu()
{
    addMenu->clear();
    const PropertyEdit::Features features = selectedFeatures();
    if (features.empty()) {
        addMenu->addAction(tr("Nothing is selected"))->setEnabled(false);
        return;
    }
    addMenu->addAction(tr("&Attribute\u2026"), this, &PropertyPanel::addAttribute)
        ->setEnabled(attributesOf(*features.front()).has_value());
    QHash<QString, int> seen;
    for (const citygml::Member& list : citygml::Member::textLists(*features.front())) {
        const QString name = QString::fromStdString(list.name());
        const int occurrence = ++seen[name];
        addMenu->addAction(tr("Entry of %1\u2026").arg(textListName(name)), this,
                           [this, name, occurrence] { addEntry(name, occurrence); });
    }
}

void PropertyPanel::showContextMenu(const QPoint& place)
{
    const PropertyNode* const node = currentNode();
    if (node == nullptr) {
        return;
    }
    QMenu menu(this);
    const QModelIndex value = view->currentIndex().sibling(view->currentIndex().row(), 1);
    const QUrl link = linkOf(value.data(ValueRole));
    menu.addAction(tr("&Edit"), view, [this] { view->editCurrent(PropertyTreeModel::ValueColumn); })
        ->setEnabled(node->isEditable);
    menu.addAction(tr("Edit the &Unit"), view, [this] { view->editCurrent(PropertyTreeModel::UnitColumn); })
        ->setEnabled(node->isUnitEditable);
    menu.addAction(tr("&Copy Value"), this,
                   [value] { QApplication::clipboard()->setText(wholeTextOf(value)); });
    menu.addAction(tr("&Follow the Link"), this, [this, link] { emit linkActivated(link); })
        ->setEnabled(!link.isEmpty());
    menu.addSeparator();
    if (canBeRenamed(*node)) {
        menu.addAction(tr("&Rename\u2026"), this, &PropertyPanel::renameCurrent);
        menu.addAction(tr("Re&move"), this, &PropertyPanel::removeCurrent);
    } else {
        menu.addAction(tr("&Make Absent"), this, &PropertyPanel::removeCurrent)
            ->setEnabled(node->isBound && node->isPresent);
    }
    fillAddMenu();
    menu.addSeparator();
    menu.addActions(addMenu->actions());
    menu.exec(view->viewport()->mapToGlobal(place));
}

PropertyEdit::Features PropertyPanel::selectedFeatures() const
{
    const QVector<int> rows = selectedRows(document.selection());
    PropertyEdit::Features features;
    for (const int row : rows) {
        features.push_back(document.model().getFeature(row));
    }
    return features;
}

/// The property with the cursor, null where there is none.
const PropertyNode* PropertyPanel::currentNode() const
{
    return properties->node(filter->mapToSource(view->currentIndex()));
}

/// \return why it is refused, or nothing
QString PropertyPanel::edit(PropertyEdit::Action action, const MemberPlace& place, const QVariant& value)
{
    if (!isComplete() && !document.editRunner().isRunning()) {
        return tr("The features are still being read.");
    }
    return document.editRunner().perform(
        PropertyEdit::prepare(document, selectedFeatures(), action, place, value));
}

void PropertyPanel::editOrTell(PropertyEdit::Action action, const MemberPlace& place, const QVariant& value)
{
    tell(edit(action, place, value));
}

/// Shows why something was refused, until the next edit.
void PropertyPanel::tell(const QString& text)
{
    message->setText(text);
    message->setVisible(!text.isEmpty());
}

QString PropertyPanel::titleOf(const PropertyEdit::Features& features) const
{
    if (features.empty()) {
        return tr("Nothing is selected");
    }
    if (features.size() > 1) {
        return tr("%n feature(s)", nullptr, static_cast<int>(features.size()));
    }
    const gml::AbstractFeatureType& feature = *features.front();
    const QString name = nameOf(feature).isEmpty() ? idOf(feature) : nameOf(feature);
    return name.isEmpty() ? typeOf(feature) : QStringLiteral("%1 \u2013 %2").arg(typeOf(feature), name);
}

} // namespace tolvik::viewer
