#include "support/Tables.h"

#include "support/Files.h"
#include "support/TestPaths.h"

namespace testsupport {

QVector<TableRow> readTable(const QString& name)
{
    QStringList lines = QString::fromUtf8(contentOf(dataFile(name))).split('\n', Qt::SkipEmptyParts);
    if (lines.isEmpty()) {
        qFatal("no table %s", qPrintable(name));
    }
    const QStringList columns = lines.takeFirst().split('\t');
    QVector<TableRow> rows;
    for (const QString& line : qAsConst(lines)) {
        const QStringList fields = line.split('\t');
        TableRow row;
        for (int i = 0; i < columns.size(); ++i) {
            row.insert(columns.at(i), fields.value(i));
        }
        rows += row;
    }
    return rows;
}

QHash<QString, QVector<TableRow>> readTableBy(const QString& name, const QString& key)
{
    QHash<QString, QVector<TableRow>> result;
    for (const TableRow& row : readTable(name)) {
        result[row.value(key)] += row;
    }
    return result;
}

const QMap<QString, QVariantList>& enumerationLiterals()
{
    static const QMap<QString, QVariantList> literals = [] {
        QMap<QString, QVariantList> result;
        for (const TableRow& row : readTable("enumerations.tsv")) {
            QVariantList& ofType = result[row.value("type")];
            if (row.value("number").toInt() != ofType.size()) {
                qFatal("%s has its literals in a wrong order", qPrintable(row.value("type")));
            }
            ofType += row.value("literal");
        }
        return result;
    }();
    return literals;
}

} // namespace testsupport
