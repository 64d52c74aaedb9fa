#include "apps/tables/TableImport.h"

#include "apps/common/PropertyText.h"
#include "apps/tables/FeaturePlace.h"
#include "gml/AbstractFeatureType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <algorithm>
#include <optional>
#include <QFileInfo>
#include <utility>

namespace tolvik::tables {

QString ImportProblem::text() const
{
    return QStringLiteral("%1: %2 %3: %4%5: %6")
        .arg(table, lineWord)
        .arg(line)
        .arg(id, column.isEmpty() ? QString() : QStringLiteral(": ") + column, reason);
}

TableImport::TableImport(std::vector<EditTable> given, ImportOptions options, const QStringList& files)
    : tables(std::move(given)), options(std::move(options)), files(files.begin(), files.end())
{
    for (std::size_t i = 0; i < tables.size(); ++i) {
        const EditTable& table = tables[i];
        matches.emplace_back(table.rows.size());
        types.emplace_back();
        for (int column = 0; column < table.columns.size(); ++column) {
            types.back() +=
                this->options.create ? table.typeOf(column, this->options.absentWord) : CellType::Text;
            hasOtherContent = hasOtherContent || table.columns[column].path.steps.first().label ==
                                                     QLatin1String("Other content");
        }
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            byId[table.rows[row].id] += Place{static_cast<int>(i), static_cast<int>(row)};
        }
    }
}

const EditTable& TableImport::tableOf(const Place& place) const
{
    return tables[static_cast<std::size_t>(place.table)];
}

const EditTable::Row& TableImport::rowOf(const Place& place) const
{
    return tableOf(place).rows[static_cast<std::size_t>(place.row)];
}

const QString& TableImport::textOf(const CellPlace& place) const
{
    return rowOf(place.row).cells[place.column];
}

/// Whether a row is for a document. A file that was told under another folder is known by its name.
bool TableImport::isMeant(const EditTable::Row& row, const QString& file) const
{
    return row.file.isEmpty() || row.file == file ||
           (!files.contains(row.file) && QFileInfo(row.file).fileName() == QFileInfo(file).fileName());
}

QVector<TableImport::Place> TableImport::rowsOf(const QString& id, const QString& file) const
{
    QVector<Place> places;
    const auto found = byId.constFind(id);
    if (found == byId.constEnd()) {
        return places;
    }
    for (const Place& place : *found) {
        const Match& match =
            matches[static_cast<std::size_t>(place.table)][static_cast<std::size_t>(place.row)];
        if (!match.isLost && isMeant(rowOf(place), file)) {
            places += place;
        }
    }
    return places;
}

void TableImport::tell(const Place& place, const QString& column, const QString& reason)
{
    const EditTable& table = tableOf(place);
    const EditTable::Row& row = rowOf(place);
    wrong += ImportProblem{table.name, table.lineWord, row.line, row.id, column, reason};
}

/// Notes in which document a row has found its feature.
void TableImport::noteMatch(const Place& place, const QString& file)
{
    Match& match = matches[static_cast<std::size_t>(place.table)][static_cast<std::size_t>(place.row)];
    if (!match.file.isNull() && match.file != file && !match.isLost) {
        tell(place, QString(),
             tr("the feature is in %1 and in %2; a column \"file\" tells which is meant")
                 .arg(match.file, file));
        match.isLost = true;
    }
    match.file = file;
}

/// The cells of a feature's rows that say something. Attributes that go come last and the later of equal ones
/// first, so that the paths of the others hold.
QVector<TableImport::CellPlace> TableImport::cellsOf(const QVector<Place>& rows)
{
    QVector<CellPlace> cells;
    for (const Place& row : rows) {
        const EditTable& table = tableOf(row);
        for (int column = 0; column < table.columns.size(); ++column) {
            if (!rowOf(row).cells[column].isEmpty() && !table.columns[column].path.isUnit) {
                cells += CellPlace{row, column};
            }
        }
    }
    if (rows.size() > 1) {
        cells = withoutContradictions(cells);
    }
    if (!options.absentWord.isEmpty()) {
        const auto going = std::stable_partition(cells.begin(), cells.end(), [this](const CellPlace& cell) {
            return textOf(cell) != options.absentWord;
        });
        std::reverse(going, cells.end());
    }
    return cells;
}

/// What tells the cell of a feature from its others.
QString TableImport::keyOf(const CellPlace& cell) const
{
    return tableOf(cell.row).columns[cell.column].path.text() + QChar(0) +
           QString::number(rowOf(cell.row).ordinal);
}

/// Leaves out cells that say what another row has said of the same feature, and those that say otherwise.
QVector<TableImport::CellPlace> TableImport::withoutContradictions(const QVector<CellPlace>& cells)
{
    QHash<QString, CellPlace> first;
    QSet<QString> contradicted;
    for (const CellPlace& cell : cells) {
        const QString path = keyOf(cell);
        const auto former = first.constFind(path);
        if (former == first.constEnd()) {
            first.insert(path, cell);
        } else if (textOf(*former) != textOf(cell)) {
            const bool isText = tableOf(former->row).lineWord == QLatin1String("line");
            tell(cell.row, tableOf(cell.row).columns[cell.column].name,
                 (isText ? tr("\"%1\" contradicts \"%2\" of line %3")
                         : tr("\"%1\" contradicts \"%2\" of row %3"))
                     .arg(textOf(cell), textOf(*former), QString::number(rowOf(former->row).line)));
            contradicted += path;
        }
    }
    QVector<CellPlace> agreed;
    for (const CellPlace& cell : cells) {
        const QString path = keyOf(cell);
        const CellPlace& kept = first[path];
        if (!contradicted.contains(path) && kept.row.table == cell.row.table &&
            kept.row.row == cell.row.row) {
            agreed += cell;
        }
    }
    return agreed;
}

/// Does a step for each cell that says something new of a feature, and notes what is wrong with it.
void TableImport::forEachCell(const gml::AbstractFeatureType& feature, const QString& file, CellEdit& edit,
                              const EachCell& step)
{
    if (!feature.id().present()) {
        return;
    }
    const QVector<Place> rows = rowsOf(idOf(&feature), file);
    for (const Place& row : rows) {
        noteMatch(row, file);
    }
    const auto attempt = [this](const CellPlace& place, const auto& work) {
        try {
            work(cellAt(place));
        } catch (const apps::EditError& error) {
            tell(place.row, tableOf(place.row).columns[place.column].name, QString::fromUtf8(error.what()));
        }
    };
    // All are compared first: a table may tell of a thing in two columns, of which people change one.
    QVector<CellPlace> news;
    const QVector<CellPlace> cells = cellsOf(rows);
    for (const CellPlace& place : cells) {
        attempt(place, [&](const CellEdit::Cell& cell) {
            if (!edit.isSaid(cell)) {
                news += place;
            }
        });
    }
    for (const CellPlace& place : qAsConst(news)) {
        attempt(place, [&](const CellEdit::Cell& cell) { step(place, cell); });
    }
}

CellEdit::Cell TableImport::cellAt(const CellPlace& place) const
{
    const EditTable& table = tableOf(place.row);
    const EditTable::Row& row = rowOf(place.row);
    const EditTable::Column& column = table.columns[place.column];
    return {column,
            types[static_cast<std::size_t>(place.row.table)][place.column],
            column.unitColumn >= 0 ? row.cells[column.unitColumn] : column.unit,
            textOf(place),
            table.groupDepth,
            row.ordinal};
}

qint64 TableImport::apply(CityGMLModel& model, const QString& file)
{
    qint64 changes = 0;
    const int count = model.rowCount();
    for (int number = 0; number < count; ++number) {
        gml::AbstractFeatureType& feature = *model.getFeature(number);
        CellEdit edit(model, feature, options, hasOtherContent);
        forEachCell(feature, file, edit,
                    [&](const CellPlace&, const CellEdit::Cell& cell) { changes += edit.set(cell) ? 1 : 0; });
    }
    if (changes > 0) {
        model.dirty(true);
    }
    return changes;
}

void TableImport::plan(CityGMLModel& model, int number, const QString& file,
                       const std::function<void(const PlannedChange&)>& receive)
{
    gml::AbstractFeatureType& feature = *model.getFeature(number);
    CellEdit edit(model, feature, options, hasOtherContent);
    forEachCell(feature, file, edit, [&](const CellPlace& place, const CellEdit::Cell& cell) {
        if (const std::optional<CellChange> change = edit.plan(cell)) {
            const QString column = cell.ordinal == 0
                                       ? cell.column.name
                                       : QStringLiteral("%1 (%2)").arg(cell.column.name).arg(cell.ordinal);
            receive({number, rowOf(place.row).id, column, cell.text, *change});
        }
    });
}

void TableImport::finish()
{
    for (std::size_t table = 0; table < tables.size(); ++table) {
        for (std::size_t row = 0; row < tables[table].rows.size(); ++row) {
            if (matches[table][row].file.isNull()) {
                tell({static_cast<int>(table), static_cast<int>(row)}, QString(),
                     tr("no document has such a feature"));
            }
        }
    }
}

} // namespace tolvik::tables
