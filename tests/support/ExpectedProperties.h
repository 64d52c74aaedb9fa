#pragma once

#include "support/SchemaObjects.h"
#include "support/TestPaths.h"

#include <memory>
#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QUrl>
#include <QVariant>
#include <vector>

/// The property trees that the tables under data/ ask for, made from schema objects without any code of the
/// catalogues.
namespace expectedproperties {

using namespace schemaobjects;

/// Lines of a table as maps from the column's name.
inline QVector<QHash<QString, QString>> readTable(const QString& name)
{
    QVector<QHash<QString, QString>> rows;
    QFile file(testpaths::dataFile(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no table %s", qPrintable(name));
    }
    QStringList columns;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
        const QStringList fields = line.split('\t');
        if (columns.isEmpty()) {
            columns = fields;
            continue;
        }
        QHash<QString, QString> row;
        for (int i = 0; i < columns.size(); ++i) {
            row.insert(columns.at(i), fields.value(i));
        }
        rows += row;
    }
    return rows;
}

/// Rows of the table by their column \a key, in the order of the table.
inline QHash<QString, QVector<QHash<QString, QString>>> readTableBy(const QString& name, const QString& key)
{
    QHash<QString, QVector<QHash<QString, QString>>> result;
    for (const auto& row : readTable(name)) {
        result[row.value(key)] += row;
    }
    return result;
}

/// What a value type of the tables means for a property.
struct ValueType
{
    explicit ValueType(const QString& name)
    {
        static const QRegularExpression pattern("^(?:(optional|sequence)<)?(.*?)>?$");
        const auto match = pattern.match(name);
        form = match.captured(1);
        base = form.isEmpty() ? name : match.captured(2);
    }

    /// `optional`, `sequence` or empty.
    QString form;
    QString base;

    bool isEnumeration() const { return literals().contains(base); }
    bool isMeasure() const
    {
        static const QStringList measures{"gml::MeasureType", "gml::LengthType", "gml::AreaType",
                                          "gml::VolumeType",  "gml::AngleType",  "gml::ScaleType"};
        return measures.contains(base);
    }
    bool isNumber() const { return isMeasure() || base == "double" || base == "core::doubleBetween0and1"; }
    bool isText() const
    {
        static const QStringList texts{"string", "gml::CodeType", "gml::TimeUnitType", "gml::StringOrRefType",
                                       "pivotEnergy::LifeCycleStageType"};
        return texts.contains(base);
    }
    bool isNullableList() const
    {
        return base == "gml::MeasureOrNullListType" || base == "gml::QuantityExtentType";
    }

    static const QHash<QString, QVariantList>& literals()
    {
        static const QHash<QString, QVariantList> all = [] {
            QHash<QString, QVariantList> result;
            for (const auto& row : readTable("enumerations.tsv")) {
                result[row.value("type")] += row.value("literal");
            }
            return result;
        }();
        return all;
    }

    /// A present value, from the text that stands in the document.
    QVariant fromText(const QString& text) const
    {
        if (isNumber()) {
            return text.toDouble();
        }
        if (base == "bool") {
            return text == "true";
        }
        if (base == "int" || base == "core::integerBetween0and4") {
            return text.toInt();
        }
        if (base == "long long") {
            return QVariant(text.toLongLong());
        }
        if (base == "unsigned long long") {
            return QVariant(text.toULongLong());
        }
        if (base == "uri" && form == "optional") {
            return QUrl(text, QUrl::TolerantMode);
        }
        if (isText() || base == "uri" || base == "gml::UnitOfMeasureType") {
            return text;
        }
        if (isEnumeration()) {
            return literals().value(base).contains(text) ? QVariant(text) : QVariant();
        }
        if (base == "date") {
            return QDate::fromString(text, Qt::ISODate);
        }
        if (base == "gyear") {
            return text.toInt();
        }
        if (base == "date_time") {
            return QDateTime::fromString(text, Qt::ISODate);
        }
        if (base == "duration") {
            static const QRegularExpression pattern(
                "^P(?:(\\d+)Y)?(?:(\\d+)M)?(?:(\\d+)D)?(?:T(?:(\\d+)H)?(?:(\\d+)M)?(?:(\\d+)S)?)?$");
            const auto match = pattern.match(text);
            const auto field = [&](int i) { return match.captured(i).toInt(); };
            return QDateTime(QDate(field(1), field(2), field(3)), QTime(field(4), field(5), field(6)));
        }
        QVariantList entries;
        for (const QString& word : text.split(' ', Qt::SkipEmptyParts)) {
            if (isNullableList()) {
                entries += word;
            } else if (base == "gml::integerList") {
                entries += QVariant(word.toLongLong());
            } else {
                entries += word.toDouble();
            }
        }
        return entries;
    }

    /// The value of the member, which may be absent.
    QVariant fromTexts(const QStringList& texts) const
    {
        if (base == "simple_type") {
            return QVariant();
        }
        if (form == "sequence") {
            QVariantList entries;
            for (const QString& text : texts) {
                entries += fromText(text);
            }
            return entries;
        }
        if (texts.isEmpty()) {
            const bool isList = isNullableList() || base == "gml::integerList";
            return isList ? QVariant(QVariantList()) : QVariant();
        }
        return fromText(texts.first());
    }

    /// What the property offers for an absent value; a moment stands for the current one.
    QVariant defaultValue() const
    {
        if (isEnumeration() || base == "simple_type" || base == "gml::QuantityExtentType") {
            return QVariant();
        }
        if (form == "sequence" || base == "gml::MeasureListType" || base == "gml::DirectPositionType" ||
            base == "gml::integerList" || base == "gml::MeasureOrNullListType") {
            return QVariantList();
        }
        if (base == "gml::ScaleType") {
            return 1.0;
        }
        if (isNumber()) {
            return 0.0;
        }
        if (base == "bool") {
            return false;
        }
        if (base == "unsigned long long") {
            return QVariant(qulonglong(0));
        }
        if (base == "int" || base == "long long" || base == "core::integerBetween0and4") {
            return 0;
        }
        if (base == "gyear") {
            return QDate::currentDate().year();
        }
        if (base == "date") {
            return QDate::currentDate();
        }
        if (base == "date_time" || base == "duration") {
            return QDateTime::currentDateTime();
        }
        return QString();
    }
};

/// One line of a property tree, and the member that it is bound to.
struct Node
{
    QString label;
    QVariant value;
    QString unit;
    bool editable = false;
    QVariantList literals;
    QVariant defaultValue;
    /// Class of the property with its parameters; empty for a plain one.
    QString propertyClass;
    std::vector<std::unique_ptr<Node>> children;

    /// Null unless the property reads and writes the document.
    xml_schema::type* owner = nullptr;
    /// Null where the owner is the value itself.
    const Member* member = nullptr;
    QString valueType;

    /// Row of the tables that makes the node, as `type order` or `operation order`; empty for a group that is
    /// of no row.
    QString row;

    Node* add(const QString& name)
    {
        children.push_back(std::make_unique<Node>());
        children.back()->label = name;
        return children.back().get();
    }
    Node* find(const QString& name) const
    {
        const auto found = std::find_if(children.begin(), children.end(),
                                        [&](const auto& child) { return child->label == name; });
        return found == children.end() ? nullptr : found->get();
    }
    Node* findOrAdd(const QString& name)
    {
        Node* const child = find(name);
        return child != nullptr ? child : add(name);
    }
};

/// Builds the tree of one object.
class Builder
{
public:
    explicit Builder(bool existingOnly) : existingOnly(existingOnly) {}

    std::unique_ptr<Node> build(xml_schema::type& object)
    {
        root = std::make_unique<Node>();
        enter(object);
        return std::move(root);
    }

    /// Rows of the table that were made, as `type order`, and of the generic ones as `operation order`.
    static QSet<QString>& madeRows()
    {
        static QSet<QString> rows;
        return rows;
    }

private:
    using Row = QHash<QString, QString>;

    Node* fields() { return root->findOrAdd("Fields"); }
    Node* extension(const QString& name) { return root->findOrAdd("Properties")->findOrAdd(name); }

    /// The group of a block's rows, as its column says.
    Node* place(const QString& group)
    {
        if (group == "Fields") {
            return fields();
        }
        if (group.startsWith("current")) {
            return current != nullptr ? current : fields();
        }
        const QStringList path = group.split('/');
        Node* const part = extension(path.first());
        return path.size() == 1 ? part : part->findOrAdd(path.at(1));
    }

    void enter(xml_schema::type& object) { visit(recordOf(object), object); }

    void enterAs(Node* group, xml_schema::type& object)
    {
        Node* const outer = current;
        current = group;
        enter(object);
        current = outer;
    }

    void enterAll(xml_schema::type& owner, const TypeRecord* record, const QString& name, bool held)
    {
        const Member* const member = findMember(record, name);
        for (std::size_t i = 0; i < member->ops->count(owner); ++i) {
            xml_schema::type* const object =
                held ? heldObject(objectAt(owner, member, i)) : &objectAt(owner, member, i);
            if (object != nullptr) {
                enter(*object);
            }
        }
    }

    /// What the object shows from one of its classes upwards.
    void visit(const TypeRecord* record, xml_schema::type& object)
    {
        if (record == nullptr) {
            return;
        }
        const QString& name = className(record);
        Node* const outer = current;
        if (name == "gen::GenericAttributeSetType") {
            current = fields()->add(label(object, record, "(name())"));
            current->row = name + " 1";
            madeRows() += current->row;
            enterAll(object, record, "_genericAttribute", false);
            visit(record->base, object);
            current = outer != nullptr ? outer : fields();
            return;
        }
        makeRows(name, record, object);
        makeGenericRows(name, record, object);
        enterNested(name, record, object);
        visit(baseWithRows(name, record), object);
        static const QStringList ending{
            "core::xalAddressPropertyType",     "utility::ElectricalMediumSupplyType",
            "utility::GaseousMediumSupplyType", "utility::LiquidMediumSupplyType",
            "utility::OpticalMediumSupplyType", "utility::SolidMediumSupplyType"};
        if (ending.contains(name)) {
            current = nullptr;
        }
    }

    /// Two classes leave the rows of their base out.
    static const TypeRecord* baseWithRows(const QString& name, const TypeRecord* record)
    {
        const bool skips =
            name == "energy::_SolarEnergySystemType" || name == "pivotEnergy::StandaloneEmitterType";
        return skips ? record->base->base : record->base;
    }

    void enterNested(const QString& name, const TypeRecord* record, xml_schema::type& object)
    {
        if (name == "gml::AbstractFeatureType") {
            enterAll(object, record, "boundedBy", false);
        } else if (name == "gml::BoundingShapeType") {
            enterAll(object, record, "Envelope", false);
        } else if (name == "core::AbstractCityObjectType") {
            enterMatching(object, record, {"gen::AbstractGenericAttributeType"}, false);
            enterMatching(object, record, {"energy::WeatherDataPropertyType"}, true);
        } else if (name == "bldg::AbstractBuildingType") {
            const Member* const addresses = findMember(record, "address");
            for (std::size_t i = 0; i < addresses->ops->count(object); ++i) {
                if (xml_schema::type* const address = heldObject(objectAt(object, addresses, i))) {
                    enterAll(*address, recordOf(*address), "xalAddress", false);
                }
            }
            enterMatching(object, record,
                          {"energy::EnergyPerformanceCertificationPropertyType",
                           "energy::VolumeTypePropertyType", "energy::RefurbishmentMeasurePropertyType",
                           "energy::FloorAreaPropertyType", "energy::HeightAboveGroundPropertyType"},
                          true);
        } else if (name == "energy::BuildingUnitType") {
            enterAll(object, record, "energyPerformanceCertification", true);
            enterAll(object, record, "floorArea", true);
        } else if (name == "energy::ThermalZoneType") {
            enterAll(object, record, "floorArea", true);
            enterAll(object, record, "volume", true);
        } else if (name == "energy::ThermalBoundaryType") {
            enterAll(object, record, "refurbishmentMeasure", true);
        } else if (name == "energy::UsageZoneType") {
            enterAll(object, record, "floorArea", true);
        } else if (name == "grp::CityObjectGroupType") {
            enterAll(object, record, "groupMember", false);
        }
    }

    /// Slot for attributes of extensions that the class itself declares.
    static const Member* slotOf(const TypeRecord* record)
    {
        for (std::size_t i = 0; i < record->memberCount; ++i) {
            if (QString::fromLatin1(record->members[i].name).startsWith("_GenericApplicationPropertyOf")) {
                return &record->members[i];
            }
        }
        return nullptr;
    }

    void enterMatching(xml_schema::type& owner, const TypeRecord* record, const QStringList& classes,
                       bool held)
    {
        const Member* const slot = slotOf(record);
        for (std::size_t i = 0; i < slot->ops->count(owner); ++i) {
            xml_schema::type& element = objectAt(owner, slot, i);
            const bool matches = std::any_of(classes.begin(), classes.end(), [&](const QString& name) {
                return isDerived(recordOf(element), recordByClass(name));
            });
            xml_schema::type* const object = held ? heldObject(element) : &element;
            if (matches && object != nullptr) {
                enter(*object);
            }
        }
    }

    QString label(const xml_schema::type& object, const TypeRecord* record, const QString& text) const
    {
        return text == "(name())" ? textsOf(object, findMember(record, "name")).first() : text;
    }

    /// Name of the member that a row reads: its accessor, or else its label in the form of the schema.
    static QString memberName(const Row& row)
    {
        static const QHash<QString, QString> others{
            {"Id", "id"},
            {"ExternalReferences", "externalReference"},
            {"GeneralizesTo", "generalizesTo"},
            {"Generalize", "generalizesTo"},
            {"relateTo", "relatesTo"},
            // The table names the accessor of the row above it.
            {"dailySchedule", "dailySchedule"},
        };
        const QString other = others.value(row.value("label"));
        const QString getter = row.value("getter").isEmpty() ? row.value("label") : row.value("getter");
        return other.isEmpty() ? getter : other;
    }

    void makeRows(const QString& name, const TypeRecord* record, xml_schema::type& object)
    {
        static const auto table = readTableBy("rows.tsv", "type");
        Node* above = nullptr;
        for (const Row& row : table.value(name)) {
            const bool below = row.value("depth") == "1";
            if (below && above == nullptr) {
                continue;
            }
            const Member* const member = findAccessor(record, memberName(row));
            const std::size_t count = member == nullptr ? 0 : member->ops->count(object);
            const QString condition = row.value("cond");
            const bool wanted =
                condition == "always" || count > 0 || (condition == "optional" && !existingOnly);
            if (!wanted) {
                above = below ? above : nullptr;
                continue;
            }
            const auto add = [&](const QString& text) {
                Node* const added = (below ? above : place(row.value("group")))->add(text);
                added->row = name + ' ' + row.value("order");
                madeRows() += added->row;
                return added;
            };
            Node* const made = makeRow(name, row, record, object, member, add);
            above = below ? above : made;
        }
    }

    /// \return the last node that the row makes
    template <class Add>
    Node* makeRow(const QString& name, const Row& row, const TypeRecord* record, xml_schema::type& object,
                  const Member* member, Add add)
    {
        const QString kind = row.value("kind");
        const QString text = label(object, record, row.value("label"));
        if (kind == "attr" || kind == "enum") {
            Node* const made = add(text);
            bind(*made, name, row, object, member);
            return made;
        }
        if (kind == "read-only") {
            return makeReadOnly(row, record, object, add);
        }
        const std::size_t count = member == nullptr ? 0 : member->ops->count(object);
        if (kind == "group") {
            return makeGroup(name, add(text));
        }
        if (kind == "group+children") {
            Node* const children = add(text);
            Node* const outer = current;
            current = children;
            for (std::size_t i = 0; i < count; ++i) {
                enter(*heldObject2(objectAt(object, member, i)));
            }
            current = outer;
            return children;
        }
        Node* made = nullptr;
        for (std::size_t i = 0; i < count; ++i) {
            xml_schema::type& element = objectAt(object, member, i);
            if (kind == "reference") {
                made = add(text);
                const QStringList target = textsOf(element, findMember(recordOf(element), "href"));
                made->value =
                    target.isEmpty() ? QVariant() : QVariant(QUrl(target.first(), QUrl::TolerantMode));
                continue;
            }
            xml_schema::type* const nested = kind == "group+held" ? heldObject(element) : &element;
            if (nested == nullptr) {
                continue;
            }
            made = add(text);
            if (name == "core::xalAddressPropertyType") {
                current = made;
                enter(*nested);
            } else {
                enterAs(made, *nested);
            }
        }
        return made;
    }

    /// The object of an element in a plural group: an external reference has its information system first.
    static xml_schema::type* heldObject2(xml_schema::type& element)
    {
        const Member* const external = findMember(recordOf(element), "externalObject");
        return external != nullptr ? &objectAt(element, external, 0) : heldObject(element);
    }

    void bind(Node& made, const QString& name, const Row& row, xml_schema::type& object, const Member* member)
    {
        const ValueType type(row.value("value_type"));
        made.owner = &object;
        made.member = member;
        made.valueType = row.value("value_type");
        made.editable = true;
        const QString owner = name == "gml::AbstractFeatureType" ? QString("gml::AbstractGMLType") : name;
        made.propertyClass =
            QString(row.value("kind") == "enum" ? "GmlEnumAttributeProperty<" : "GmlAttributeProperty<") +
            owner + ", " + row.value("value_type") + '>';
        made.defaultValue = type.defaultValue();
        made.value = type.fromTexts(valueTexts(object, member, type));
        if (row.value("kind") == "enum") {
            made.literals = ValueType::literals().value(type.base);
        }
        if (row.value("uom").startsWith("stored") && member->ops->count(object) > 0) {
            made.unit = uomOf(member->ops->at(object, 0));
        }
    }

    template <class Add>
    Node* makeReadOnly(const Row& row, const TypeRecord* record, xml_schema::type& object, Add add)
    {
        const QString name = row.value("label");
        if (name == "Generalize") {
            Node* made = nullptr;
            const Member* const relations = findMember(record, "generalizesTo");
            for (std::size_t i = 0; i < relations->ops->count(object); ++i) {
                const xml_schema::type* const target = heldObject(objectAt(object, relations, i));
                const QStringList id =
                    target == nullptr ? QStringList() : textsOf(*target, findMember(recordOf(*target), "id"));
                if (!id.isEmpty()) {
                    made = add(name);
                    made->value = '#' + id.first();
                }
            }
            return made;
        }
        QVariant value;
        if (name == "ClassType") {
            value = className(recordOf(object)).section("::", 1).remove(QRegularExpression("Type$"));
        } else if (name == "Id") {
            const QStringList id = textsOf(object, findMember(record, "id"));
            if (id.isEmpty()) {
                return nullptr;
            }
            value = id.first();
        } else if (name == "timeIntervalLength") {
            value = textOf(object).toDouble();
        } else {
            value = textOf(object);
        }
        Node* const made = add(name);
        made->value = value;
        return made;
    }

    /// Some groups stay the current one behind their object.
    Node* makeGroup(const QString& name, Node* made)
    {
        const bool isSupply =
            name.endsWith("MediumSupplyType") && name != "utility::AbstractMediumSupplyType";
        if (isSupply || name == "energy::ThermalBoundaryType") {
            current = made;
        }
        return made;
    }

    /// Texts that the value of an attribute is read from.
    static QStringList valueTexts(const xml_schema::type& object, const Member* member, const ValueType& type)
    {
        if (type.base != "gml::UnitOfMeasureType") {
            return textsOf(object, member);
        }
        return {uomOf(member->ops->at(object, 0))};
    }

public:
    static QString uomOf(const xml_schema::type& measure)
    {
        return textsOf(measure, findMember(recordOf(measure), "uom")).value(0);
    }

    /// The value that a bound node's property must show now.
    static QVariant currentValue(const Node& node)
    {
        const ValueType type(node.valueType);
        return node.member != nullptr ? type.fromTexts(valueTexts(*node.owner, node.member, type))
                                      : type.fromText(textOf(*node.owner));
    }

private:
    void makeGenericRows(const QString& name, const TypeRecord* record, xml_schema::type& object)
    {
        static const QHash<QString, QString> operations{
            {"bldg::AbstractBuildingType", "visit_abstractBuilding_genericProperties"},
            {"tran::TrafficAreaType", "visit_trafficArea_genericProperties"},
            {"tran::AuxiliaryTrafficAreaType", "visit_auxiliaryTrafficArea_genericProperties"},
            {"energy::ThermalZoneType", "visit_thermalZone_genericProperties"},
            {"energy::UsageZoneType", "visit_usageZone_genericProperties"},
            {"component::LayeredComponentTypeType", "visit_layeredComponent_genericProperties"},
            {"component::OpeningComponentTypeType", "visit_openingComponent_genericProperties"},
        };
        static const auto table = readTableBy("generic_rows.tsv", "operation");
        const QString operation = operations.value(name);
        if (operation.isEmpty()) {
            return;
        }
        const Member* const slot = slotOf(record);
        for (std::size_t i = 0; i < slot->ops->count(object); ++i) {
            xml_schema::type& element = objectAt(object, slot, i);
            for (const Row& row : table.value(operation)) {
                if (isDerived(recordOf(element), recordByClass(row.value("class_matched")))) {
                    makeGenericRow(row, element);
                }
            }
        }
    }

    void makeGenericRow(const Row& row, xml_schema::type& element)
    {
        const QString kind = row.value("kind");
        xml_schema::type* const nested = kind == "group+held" ? heldObject(element) : &element;
        if (nested == nullptr && row.value("label") != "shading") {
            return;
        }
        Node* const made = extension(row.value("group"))->add(row.value("label"));
        made->row = row.value("operation") + ' ' + row.value("order");
        madeRows() += made->row;
        if (kind.startsWith("group")) {
            if (nested != nullptr) {
                enterAs(made, *nested);
            }
            return;
        }
        const ValueType type(row.value("value_type"));
        made->owner = &element;
        made->valueType = row.value("value_type");
        made->value = type.fromText(textOf(element));
        made->defaultValue = type.defaultValue();
        made->propertyClass = QString(kind == "generic enum" ? "GmlEnum" : "Gml") +
                              "GenericApplicationAttributeProperty<" + row.value("class_matched") + ", " +
                              row.value("value_type") + '>';
        if (kind == "generic enum") {
            made->literals = ValueType::literals().value(type.base);
        }
        if (row.value("uom") == "stored") {
            made->unit = uomOf(element);
        }
    }

    bool existingOnly;
    std::unique_ptr<Node> root;
    Node* current = nullptr;
};

} // namespace expectedproperties
