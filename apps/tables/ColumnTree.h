#pragma once

#include "apps/tables/CellType.h"
#include "apps/tables/ColumnPath.h"
#include "apps/tables/FeatureRow.h"

#include <QMap>
#include <QString>
#include <QVector>

namespace tolvik {
class CoreProperty;
}

namespace tolvik::tables {

/// The properties that the features of one type have between them, as a tree of labels, with what their
/// columns must be able to hold. It grows with each feature that is read, until it is fixed.
class ColumnTree
{
public:
    struct Node
    {
        int outer = -1; ///< node of the group around it; -1 directly below the root
        ColumnPath::Step step;
        bool isGeneric = false;
        bool isRepeated = false; ///< whether it is a group that a feature has several of
        bool hasValues = false;
        CellType type = CellType::Text; ///< of the values
        QString unit;                   ///< of the first value
        bool hasOtherUnits = false;     ///< whether values differ in their unit

    private:
        friend class ColumnTree;
        QVector<int> inner;       // nodes of the children, first occurrences alone
        QVector<int> occurrences; // the second and the later ones
        int visit = 0;            // group in which the label was last met, and how often
        int count = 0;
    };

    /// Adds the cells of a feature's property tree to a row. Where the tree is fixed, what it does not have
    /// is left out.
    void read(const CoreProperty& root, FeatureRow& row);

    /// From now on the tree has the nodes that it has, with their types and units.
    void fix() { isFixed = true; }
    /// The node of a path, made where it is not there.
    int nodeAt(const ColumnPath& path);
    /// The same, without making one: -1 where it is not there.
    int findNode(const ColumnPath& path) const;

    /// Widens the column of a node for a value of a type, with a unit or an empty one.
    void note(int index, CellType type, const QString& unit);

    /// The paths of values that a fixed tree had no column for, with their numbers.
    const QMap<QString, qint64>& leftOut() const { return missing; }

    Node& node(int index) { return nodes[index]; }
    const Node& node(int index) const { return nodes[index]; }
    ColumnPath pathOf(int index) const;
    /// The innermost repeated group around a node; -1 where there is none. A group does not stand around
    /// itself.
    int repeatedAround(int index) const;
    /// All nodes as property trees show them: those of a group behind it, in the order in which features
    /// first had them.
    QVector<int> inOrder() const;

private:
    /// The group that is being read.
    struct Place
    {
        int node;  // -1 for the root
        int group; // index in the row; -1 for the root
    };

    void readGroup(const CoreProperty& group, Place place, FeatureRow& row);
    void readProperty(CoreProperty& property, Place place, int visit, int& hint, FeatureRow& row);
    void leaveOut(CoreProperty& property, ColumnPath path);
    void addCell(CoreProperty& property, int node, int group, FeatureRow& row);
    int child(int outer, const QString& label, bool isGeneric, int& hint);
    int occurrence(int first, int number);
    int append(int outer, const ColumnPath::Step& step, bool isGeneric);
    QVector<int>& innerOf(int index) { return index < 0 ? outermost : nodes[index].inner; }
    const QVector<int>& innerOf(int index) const { return index < 0 ? outermost : nodes[index].inner; }
    void addInOrder(const QVector<int>& indexes, QVector<int>& order) const;

    QVector<Node> nodes;
    QVector<int> outermost;
    int visits = 0;
    bool isFixed = false;
    QMap<QString, qint64> missing;
};

/// Whether every table has what a path leads to in another column, so that only those who ask by name get it.
bool isTold(const QString& path);

/// Whether a property is that of a generic attribute.
bool isGenericAttribute(const CoreProperty& property);

} // namespace tolvik::tables
