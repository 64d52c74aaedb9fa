// Loads a document, walks its tree, edits an attribute, saves, and reads it again: otherplatform FILE OUT

#include "framework/TreeNodeProxyModel.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"
#include "UI/Models/CityGMLModel/FeaturePropertyModel.h"

#include <cstdio>
#include <cstdlib>
#include <log4cplus/initializer.h>
#include <QApplication>

namespace {

void expect(bool condition, const char* message)
{
    if (!condition) {
        std::fprintf(stderr, "FAILED: %s\n", message);
        std::exit(1);
    }
}

QModelIndex find(const QAbstractItemModel& model, const QString& text)
{
    return model.match(model.index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

/// The height of the house, in a document.
QModelIndex height(tolvik::CityGMLModel& model, tolvik::FeaturePropertyModel& properties)
{
    properties.setFeature(&model, model.index(model.getFeature(std::string("lantern-house"))));
    return find(properties, "MeasuredHeight").siblingAtColumn(1);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const log4cplus::Initializer logging;
    const QStringList arguments = QCoreApplication::arguments();

    tolvik::CityGMLModel model(nullptr, nullptr);
    tolvik::CityGMLTreeModel tree;
    tree.setSourceModel(&model);
    model.load(arguments.value(1));
    expect(model.rowCount() > 10, "the document has hardly any rows");
    const QModelIndex house = find(tree, "Lantern House");
    expect(house.isValid() && house.parent().isValid() && tree.rowCount(house) > 0, "the tree is flat");

    tolvik::FeaturePropertyModel properties;
    expect(properties.setData(height(model, properties), 7.25), "the height cannot be set");
    expect(model.dirty(), "the edit does not count");
    expect(model.saveAs(arguments.value(2), false), "the document is not saved");

    tolvik::CityGMLModel again(nullptr, nullptr);
    again.load(arguments.value(2));
    expect(again.rowCount() == model.rowCount(), "the saved document has other rows");
    expect(height(again, properties).data().toDouble() == 7.25, "the saved document has another height");

    model.removeFeature(model.getFeature(std::string("lantern-house")));
    expect(!find(tree, "Lantern House").isValid(), "the tree has a feature that was removed");
    return 0;
}
