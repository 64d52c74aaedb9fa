#include "apps/viewer/exchange/ImportDialog.h"

#include "apps/tables/TableError.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/exchange/ImportPreview.h"

#include <algorithm>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QtConcurrentRun>
#include <QVBoxLayout>

namespace tolvik::viewer {

namespace {

constexpr int planDelayMilliseconds = 300;

/// The column that is likely to name the features.
int likelyIdColumn(const QStringList& columns)
{
    const int usual = columns.indexOf(QStringLiteral("gml:id"));
    if (usual >= 0) {
        return usual;
    }
    const auto found = std::find_if(columns.begin(), columns.end(), [](const QString& name) {
        return name.contains(QLatin1String("id"), Qt::CaseInsensitive);
    });
    return found != columns.end() ? static_cast<int>(found - columns.begin()) : 0;
}

} // namespace

ImportDialog::ImportDialog(Document& document, const tables::TableExchange& exchange, const QString& path,
                           QWidget* parent)
    : QDialog(parent), document(document), exchange(exchange), path(path), idColumn(new QComboBox(this)),
      create(
          new QCheckBox(tr("&Make generic attributes of columns that features have no attribute for"), this)),
      absentWord(new QLineEdit(this)), skipBad(new QCheckBox(tr("&Skip what cannot be set"), this)),
      view(new QTableView(this)), message(new QLabel(this)), progress(new QProgressBar(this)),
      importButton(new QPushButton(tr("&Import"), this)), preview(new ImportPreview(this))
{
    setWindowTitle(tr("Import %1").arg(QFileInfo(path).fileName()));
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(new QFormLayout);
    makeOptions(exchange.columns(path));
    makePreview();
    makeButtons();
    planTimer.setSingleShot(true);
    planTimer.setInterval(planDelayMilliseconds);
    connect(&planTimer, &QTimer::timeout, this, &ImportDialog::plan);
    connect(&reading, &QFutureWatcherBase::finished, this, [this] {
        contents = reading.result();
        plan();
    });
    connect(&work, &SlicedWork::progressed, this, &ImportDialog::show);
    // Nothing of the former document is left to change then.
    connect(&document, &Document::aboutToBeOpened, this, [this] {
        stop();
        reject();
    });
    resize(820, 560);
    read();
}

ImportDialog::~ImportDialog()
{
    reading.waitForFinished();
}

const std::vector<tables::PlannedChange>& ImportDialog::changes() const
{
    return preview->changes();
}

void ImportDialog::makeOptions(const QStringList& columns)
{
    idColumn->setObjectName(QStringLiteral("idColumn"));
    idColumn->addItems(columns);
    idColumn->setCurrentIndex(likelyIdColumn(columns));
    create->setObjectName(QStringLiteral("createAttributes"));
    absentWord->setObjectName(QStringLiteral("absentWord"));
    absentWord->setPlaceholderText(tr("no word: empty cells leave the attribute alone"));
    skipBad->setObjectName(QStringLiteral("skipBad"));
    auto* const form = qobject_cast<QFormLayout*>(layout()->itemAt(0)->layout());
    form->addRow(tr("Column that &names the feature"), idColumn);
    form->addRow(tr("&Word that takes an attribute away"), absentWord);
    form->addRow(create);
    form->addRow(skipBad);
    connect(idColumn, &QComboBox::currentTextChanged, this, &ImportDialog::read);
    connect(create, &QCheckBox::toggled, this, &ImportDialog::planSoon);
    connect(absentWord, &QLineEdit::textChanged, this, &ImportDialog::planSoon);
    connect(skipBad, &QCheckBox::toggled, this, &ImportDialog::updateButtons);
}

void ImportDialog::makePreview()
{
    view->setObjectName(QStringLiteral("importPreview"));
    view->setAccessibleName(tr("What the import changes"));
    view->setModel(preview);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setWordWrap(false);
    view->setTabKeyNavigation(false);
    view->verticalHeader()->hide();
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + 8);
    view->horizontalHeader()->setStretchLastSection(true);
    view->horizontalHeader()->setHighlightSections(false);
    view->setColumnWidth(ImportPreview::Feature, 160);
    view->setColumnWidth(ImportPreview::Attribute, 220);
    message->setObjectName(QStringLiteral("importMessage"));
    message->setWordWrap(true);
    layout()->addWidget(view);
    layout()->addWidget(message);
}

void ImportDialog::makeButtons()
{
    importButton->setObjectName(QStringLiteral("import"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(importButton, QDialogButtonBox::ActionRole);
    importButton->setDefault(true);
    connect(importButton, &QPushButton::clicked, this, &ImportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImportDialog::reject);
    layout()->addWidget(progress);
    layout()->addWidget(buttons);
}

void ImportDialog::read()
{
    stop();
    isPlanned = false;
    preview->clear();
    tell(tr("Reading the table\u2026"));
    progress->setRange(0, 0);
    progress->show();
    updateButtons();
    tables::EditSource source;
    source.path = path;
    source.idColumn = idColumn->currentText();
    reading.waitForFinished();
    reading.setFuture(QtConcurrent::run([&exchange = exchange, source] {
        Contents read;
        try {
            read.tables = exchange.read(source, read.remarks);
        } catch (const tables::TableError& error) {
            read.error = QString::fromUtf8(error.what());
        }
        return read;
    }));
}

void ImportDialog::planSoon()
{
    isPlanned = false;
    updateButtons();
    planTimer.start();
}

/// Looks at all features for what the table would change.
void ImportDialog::plan()
{
    if (reading.isRunning()) {
        return;
    }
    stop();
    preview->clear();
    if (!contents.error.isEmpty()) {
        tell(contents.error);
        progress->hide();
        return;
    }
    tell(tr("Comparing the table with the document\u2026"));
    tables::ImportOptions options;
    options.create = create->isChecked();
    options.absentWord = absentWord->text();
    const QString file = document.fileName();
    import = std::make_unique<tables::TableImport>(contents.tables, options, QStringList{file});
    work.start(document.model().rowCount(), [this, file](int row) {
            import->plan(document.model(), row, file,
                         [this](const tables::PlannedChange& change) { found.push_back(change);
    });
},
        [this] {
    showPlan(); });
}

void ImportDialog::showPlan()
{
    import->finish();
    progress->hide();
    preview->setProblems(import->problems());
    isPlanned = true;
    const int changes = static_cast<int>(preview->changes().size());
    const int problems = preview->problemCount();
    QString text = tr("%Ln change(s)", nullptr, changes);
    if (problems > 0) {
        //: Joins the number of changes and the number of problems
        text = tr("%1, %2").arg(text, tr("%Ln problem(s)", nullptr, problems));
    }
    tell(text);
    updateButtons();
}

/// Takes up what a slice has found, and shows how far the work is.
void ImportDialog::show(int done, int steps)
{
    if (!found.empty()) {
        preview->add(found);
        found.clear();
    }
    progress->show();
    progress->setRange(0, std::max(1, steps));
    progress->setValue(done);
}

void ImportDialog::stop()
{
    work.stop();
    planTimer.stop();
    found.clear();
}

void ImportDialog::tell(const QString& text)
{
    message->setText(text);
}

void ImportDialog::updateButtons()
{
    const bool isWrong = preview->problemCount() > 0 && !skipBad->isChecked();
    importButton->setEnabled(isPlanned && !isWrong && !preview->changes().empty());
}

} // namespace tolvik::viewer
