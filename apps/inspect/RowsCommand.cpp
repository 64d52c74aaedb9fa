#include "RowsCommand.h"

#include "gml/AbstractFeatureType.hxx"
#include "JsonText.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <ostream>

namespace tolvik::inspect {
namespace {

struct Row
{
    int index;
    QString type;
    QString id; // null if it is not there
    QString name;
};

Row readRow(const CityGMLModel& model, int index)
{
    const gml::AbstractFeatureType* feature = model.getFeature(index);
    return {index, model.index(index, 1, QModelIndex()).data().toString(),
            feature->id().present() ? QString::fromStdString(feature->id().get()) : QString(),
            model.index(index, 0, QModelIndex()).data().toString()};
}

void printText(const Row& row, std::ostream& out)
{
    // A name may stand over several lines in the document; here it is one field of one line.
    const QString name = row.name.simplified();
    out << row.index << '\t' << row.type.toStdString() << '\t'
        << (row.id.isNull() ? "-" : row.id.toStdString()) << '\t' << name.toStdString() << '\n';
}

// Written row by row, since a document may have a million.
void printJson(const Row& row, std::ostream& out)
{
    out << (row.index == 0 ? "\n" : ",\n") << "{\"row\":" << row.index << ",\"type\":" << jsonText(row.type)
        << ",\"id\":" << (row.id.isNull() ? "null" : jsonText(row.id)) << ",\"name\":" << jsonText(row.name)
        << '}';
}

} // namespace

int runRows(CityGMLModel& model, bool json, std::ostream& out)
{
    const int count = model.rowCount(QModelIndex());
    if (json) {
        out << '[';
    }
    for (int index = 0; index < count; ++index) {
        const Row row = readRow(model, index);
        if (json) {
            printJson(row, out);
        } else {
            printText(row, out);
        }
    }
    if (json) {
        out << "\n]\n";
    }
    return 0;
}

} // namespace tolvik::inspect
