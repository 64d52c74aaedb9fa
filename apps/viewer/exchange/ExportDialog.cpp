#include "apps/viewer/exchange/ExportDialog.h"

#include "apps/tables/TableError.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/exchange/ExportColumns.h"
#include "gml/AbstractFeatureType.hxx"

#include <algorithm>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHash>
#include <QLabel>
#include <QMap>
#include <QProgressBar>
#include <QPushButton>
#include <QtConcurrentRun>

namespace tolvik::viewer {

namespace {

using tables::TableFormat;

enum ColumnChoice { AllColumns, ShownColumns };

/// The name filter of a format in dialogs for files.
QString filterOf(const TableFormat& format)
{
    static const QHash<QString, const char*> names{
        {QStringLiteral("csv"), QT_TRANSLATE_NOOP("tolvik::viewer::ExportDialog", "Text with commas")},
        {QStringLiteral("gpkg"), "GeoPackage"},
        {QStringLiteral("geojson"), "GeoJSON"},
        {QStringLiteral("geojsonl"),
         QT_TRANSLATE_NOOP("tolvik::viewer::ExportDialog", "GeoJSON with a line a feature")},
        {QStringLiteral("fgb"), "FlatGeobuf"},
        {QStringLiteral("xlsx"), QT_TRANSLATE_NOOP("tolvik::viewer::ExportDialog", "Spreadsheet")},
    };
    const QString ending = QString::fromLatin1(format.ending);
    return QStringLiteral("%1 (*.%2)")
        .arg(QCoreApplication::translate("tolvik::viewer::ExportDialog", names.value(ending)), ending);
}

/// The formats of files: all of them for one type of features, else those that hold several tables.
QVector<const TableFormat*> fileFormats(bool isOneType)
{
    QVector<const TableFormat*> formats;
    const QStringList names = tables::formatNames();
    for (const QString& name : names) {
        const TableFormat* const format = tables::formatNamed(name);
        if (*format->ending != '\0' && (isOneType || format->holdsSeveral)) {
            formats += format;
        }
    }
    return formats;
}

} // namespace

ExportDialog::ExportDialog(Document& document, const tables::TableExchange& exchange, const Shown& shown,
                           QWidget* parent)
    : QDialog(parent), document(document), exchange(exchange), shown(shown), types(new QComboBox),
      columns(new QComboBox), message(new QLabel), progress(new QProgressBar),
      exportButton(new QPushButton(tr("&Export...")))
{
    setWindowTitle(tr("Export Table"));
    types->setObjectName(QStringLiteral("exportType"));
    columns->setObjectName(QStringLiteral("exportColumns"));
    message->setObjectName(QStringLiteral("exportMessage"));
    message->setWordWrap(true);
    exportButton->setObjectName(QStringLiteral("export"));
    exportButton->setDefault(true);
    auto* const form = new QFormLayout(this);
    form->addRow(tr("&Features"), types);
    form->addRow(tr("&Columns"), columns);
    form->addRow(message);
    form->addRow(progress);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    cancelButton = buttons->button(QDialogButtonBox::Cancel);
    buttons->addButton(exportButton, QDialogButtonBox::ActionRole);
    form->addRow(buttons);
    progress->hide();
    fillTypes();
    updateColumns();
    connect(types, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ExportDialog::updateColumns);
    connect(exportButton, &QPushButton::clicked, this, &ExportDialog::chooseFile);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportDialog::reject);
    connect(&work, &SlicedWork::progressed, this, [this](int done, int steps) {
        progress->setRange(0, std::max(1, steps));
        progress->setValue(done);
    });
    connect(&writing, &QFutureWatcherBase::finished, this, &ExportDialog::end);
    connect(&document, &Document::aboutToBeOpened, this, &ExportDialog::reject);
}

ExportDialog::~ExportDialog()
{
    writing.waitForFinished();
}

/// Offers the types of the document's features, and begins with that of the table.
void ExportDialog::fillTypes()
{
    QMap<QString, int> counts;
    const CityGMLModel& features = document.model();
    for (int row = 0; row < features.rowCount(); ++row) {
        ++counts[QString::fromStdString(features.getFeature(row)->typeLabel)];
    }
    types->addItem(tr("All types, a table each"));
    for (auto count = counts.constBegin(); count != counts.constEnd(); ++count) {
        types->addItem(tr("%1 (%2)").arg(count.key()).arg(count.value()), count.key());
    }
    types->setCurrentIndex(shown.type.isEmpty() ? 0 : std::max(0, types->findData(shown.type)));
}

void ExportDialog::updateColumns()
{
    columns->clear();
    columns->addItem(tr("All that the features have"), AllColumns);
    const bool hasShown = !shown.columns.isEmpty() && types->currentData().toString() == shown.type;
    if (hasShown) {
        columns->addItem(tr("Those of the table (%1)").arg(shown.columns.size()), ShownColumns);
        columns->setCurrentIndex(1);
    }
}

QStringList ExportDialog::chosenColumns() const
{
    if (columns->currentData().toInt() != ShownColumns) {
        return {};
    }
    const CityGMLModel& features = document.model();
    for (int row = 0; row < features.rowCount(); ++row) {
        gml::AbstractFeatureType& feature = *features.getFeature(row);
        if (feature.typeLabel == shown.type.toStdString()) {
            return exportColumns(features, feature, shown.columns);
        }
    }
    return {};
}

void ExportDialog::chooseFile()
{
    const QString type = types->currentData().toString();
    const QVector<const TableFormat*> formats = fileFormats(!type.isEmpty());
    QStringList filters;
    for (const TableFormat* const format : formats) {
        filters += filterOf(*format);
    }
    const QFileInfo file(document.fileName());
    const QString name = type.isEmpty() ? file.completeBaseName() : type;
    QString filter = filters.first();
    QString path = QFileDialog::getSaveFileName(this, tr("Export Table"), file.dir().filePath(name),
                                                filters.join(QStringLiteral(";;")), &filter);
    if (path.isEmpty()) {
        return;
    }
    if (!formats.contains(tables::formatOf(path))) {
        path += QLatin1Char('.') + QString::fromLatin1(formats[std::max(0, filters.indexOf(filter))]->ending);
    }
    begin(QFileInfo(path).absoluteFilePath());
}

void ExportDialog::begin(const QString& path)
{
    target = path;
    tables::ExportOptions options;
    if (!types->currentData().toString().isEmpty()) {
        options.types += types->currentData().toString();
    }
    options.columns = chosenColumns();
    options.otherContent =
        std::any_of(options.columns.begin(), options.columns.end(),
                    [](const QString& name) { return name.startsWith(QLatin1String("Other content")); });
    options.target.path = path;
    options.target.format = tables::formatOf(path);
    options.target.isOneType = !options.target.format->holdsSeveral;
    options.target.hasGeometry = options.target.format->holdsGeometry;
    try {
        writer = exchange.write(options);
        writer->begin(document.model(), document.fileName());
    } catch (const tables::TableError& error) {
        fail(QString::fromUtf8(error.what()));
        return;
    }
    setBusy(true);
    message->setText(tr("Reading the features\u2026"));
    work.start(
        document.model().rowCount(), [this](int row) { add(row); }, [this] { finish(); });
}

void ExportDialog::add(int row)
{
    if (writer == nullptr) {
        return;
    }
    try {
        writer->addFeature(row);
    } catch (const tables::TableError& error) {
        fail(QString::fromUtf8(error.what()));
    }
}

void ExportDialog::finish()
{
    if (writer == nullptr) {
        return;
    }
    writer->end();
    message->setText(tr("Writing %1\u2026").arg(QFileInfo(target).fileName()));
    progress->setRange(0, 0);
    cancelButton->setEnabled(false);
    writing.setFuture(QtConcurrent::run([this] {
        QString reason;
        try {
            writer->finish();
            told = writer->remarks() + writer->problems();
        } catch (const tables::TableError& error) {
            reason = QString::fromUtf8(error.what());
        }
        // What GDAL has open is closed in the thread that has opened it.
        writer.reset();
        return reason;
    }));
}

void ExportDialog::end()
{
    if (writing.result().isEmpty()) {
        accept();
    } else {
        fail(writing.result());
    }
}

/// Tells why there is no table; the user can choose anew.
void ExportDialog::fail(const QString& reason)
{
    writer.reset();
    setBusy(false);
    message->setText(tr("The table could not be written: %1").arg(reason));
}

void ExportDialog::setBusy(bool busy)
{
    for (QWidget* const each : std::initializer_list<QWidget*>{types, columns, exportButton}) {
        each->setEnabled(!busy);
    }
    cancelButton->setEnabled(true);
    progress->setVisible(busy);
}

void ExportDialog::reject()
{
    if (writing.isRunning()) {
        return;
    }
    work.stop();
    writer.reset();
    QDialog::reject();
}

} // namespace tolvik::viewer
