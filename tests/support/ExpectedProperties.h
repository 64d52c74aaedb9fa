#pragma once

#include "support/SchemaObjects.h"
#include "support/Tables.h"
#include "support/ValueType.h"

#include <functional>
#include <memory>
#include <QSet>
#include <QString>
#include <QVariant>
#include <vector>

namespace testsupport {

/// One line of a property tree, and the member that it is bound to.
struct ExpectedNode
{
    QString label;
    QVariant value;
    QString unit;
    bool editable = false;
    QVariantList literals;
    QVariant defaultValue;
    /// Class of the property with its parameters; empty for a plain one.
    QString propertyClass;
    std::vector<std::unique_ptr<ExpectedNode>> children;

    /// Null unless the property reads and writes the document.
    xml_schema::type* owner = nullptr;
    /// Null where the owner is the value itself.
    const Member* member = nullptr;
    QString valueType;

    /// Row of the tables that makes the node, as `type order` or `operation order`; empty for a group that is
    /// of no row.
    QString row;

    ExpectedNode* add(const QString& name);
    ExpectedNode* find(const QString& name) const;
    ExpectedNode* findOrAdd(const QString& name);
};

/// Builds the property tree that the tables under data/ ask for, from an object of the schema and without any
/// code of the catalogues.
class ExpectedProperties
{
public:
    explicit ExpectedProperties(bool existingOnly) : existingOnly(existingOnly) {}

    std::unique_ptr<ExpectedNode> build(xml_schema::type& object);

    /// Rows of the table that were made, as `type order`, and of the generic ones as `operation order`.
    static QSet<QString>& madeRows();

private:
    /// Adds a row's node below the group that it belongs to.
    using Add = std::function<ExpectedNode*(const QString& label)>;

    ExpectedNode* fields() { return root->findOrAdd("Fields"); }
    ExpectedNode* extension(const QString& name) { return root->findOrAdd("Properties")->findOrAdd(name); }

    /// The group of a block's rows, as its column says.
    ExpectedNode* groupOf(const QString& group);

    void enter(xml_schema::type& object) { visit(recordOf(object), object); }

    void enterAs(ExpectedNode* group, xml_schema::type& object);

    void enterAll(xml_schema::type& owner, const TypeRecord* record, const QString& name, bool held);

    /// What the object shows from one of its classes upwards.
    void visit(const TypeRecord* record, xml_schema::type& object);

    /// Two classes leave the rows of their base out.
    static const TypeRecord* baseWithRows(const QString& name, const TypeRecord* record);

    void enterNested(const QString& name, const TypeRecord* record, xml_schema::type& object);

    /// Slot for attributes of extensions that the class itself declares.
    static const Member* slotOf(const TypeRecord* record);

    void enterMatching(xml_schema::type& owner, const TypeRecord* record, const QStringList& classes,
                       bool held);

    QString label(const xml_schema::type& object, const TypeRecord* record, const QString& text) const;

    /// Name of the member that a row reads: its accessor, or else its label in the form of the schema.
    static QString memberName(const TableRow& row);

    void makeRows(const QString& name, const TypeRecord* record, xml_schema::type& object);

    /// \return the last node that the row makes
    ExpectedNode* makeRow(const QString& name, const TableRow& row, const TypeRecord* record,
                          xml_schema::type& object, const Member* member, const Add& add);

    /// The object of an element in a plural group: an external reference has its information system first.
    static xml_schema::type* firstHeldObject(xml_schema::type& element);

    void bind(ExpectedNode& made, const QString& name, const TableRow& row, xml_schema::type& object,
              const Member* member);

    ExpectedNode* makeReadOnly(const TableRow& row, const TypeRecord* record, xml_schema::type& object,
                               const Add& add);

    /// Some groups stay the current one behind their object.
    ExpectedNode* makeGroup(const QString& name, ExpectedNode* made);

    /// Texts that the value of an attribute is read from.
    static QStringList valueTexts(const xml_schema::type& object, const Member* member,
                                  const ValueType& type);

public:
    static QString uomOf(const xml_schema::type& measure);

    /// The value that a bound node's property must show now.
    static QVariant currentValue(const ExpectedNode& node);

private:
    void makeGenericRows(const QString& name, const TypeRecord* record, xml_schema::type& object);

    void makeGenericRow(const TableRow& row, xml_schema::type& element);

    bool existingOnly;
    std::unique_ptr<ExpectedNode> root;
    ExpectedNode* current = nullptr;
};

} // namespace testsupport
