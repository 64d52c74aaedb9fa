#include "TreeCommand.h"

#include "JsonText.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModel.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseAllVisitor.h"

#include "gml/AbstractFeatureType.hxx"

#include <ostream>

namespace tolvik::inspect {

namespace {

QString nameOf(const QModelIndex& node)
{
    return node.data().toString();
}

QString typeOf(const QModelIndex& node)
{
    return node.siblingAtColumn(1).data().toString();
}

std::string indentation(int level)
{
    return std::string(2 * static_cast<std::size_t>(level), ' ');
}

void printText(const CityGMLProxyModel& tree, const QModelIndex& parent, int level, std::ostream& out)
{
    for (int i = 0; i < tree.rowCount(parent); ++i) {
        const QModelIndex node = tree.index(i, 0, parent);
        // A name may stand over several lines in the document; here it is one field of one line.
        out << indentation(level) << nameOf(node).simplified().toStdString() << " ["
            << typeOf(node).toStdString() << "]\n";
        printText(tree, node, level + 1, out);
    }
}

// Written node by node, since a document may have a million.
void printJson(const CityGMLProxyModel& tree, const QModelIndex& parent, int level, std::ostream& out)
{
    out << '[';
    for (int i = 0; i < tree.rowCount(parent); ++i) {
        const QModelIndex node = tree.index(i, 0, parent);
        const auto& id = CityGMLProxyModel::getFeature(node)->id();
        out << (i == 0 ? "\n" : ",\n") << indentation(level) << "{\"name\":" << jsonText(nameOf(node))
            << ",\"type\":" << jsonText(typeOf(node)) << ",\"row\":" << tree.mapToSource(node).row()
            << ",\"id\":" << (id.present() ? jsonText(QString::fromStdString(id.get())) : "null")
            << ",\"children\":";
        printJson(tree, node, level + 1, out);
        out << '}';
    }
    out << ']';
}

} // namespace

int runTree(CityGMLModel& model, bool json, bool all, std::ostream& out)
{
    CityGMLProxyModel tree;
    if (all) {
        tree.setTraversalVisitor(new CityGMLProxyModelTraverseAllVisitor);
    }
    tree.setSourceModel(&model);
    if (json) {
        printJson(tree, QModelIndex(), 0, out);
        out << '\n';
    } else {
        printText(tree, QModelIndex(), 0, out);
    }
    return 0;
}

} // namespace tolvik::inspect
