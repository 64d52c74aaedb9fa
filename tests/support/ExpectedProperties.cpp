#include "support/ExpectedProperties.h"

#include <algorithm>
#include <QRegularExpression>
#include <QUrl>

namespace testsupport {

ExpectedNode* ExpectedNode::add(const QString& name)
{
    children.push_back(std::make_unique<ExpectedNode>());
    children.back()->label = name;
    return children.back().get();
}

ExpectedNode* ExpectedNode::find(const QString& name) const
{
    const auto found = std::find_if(children.begin(), children.end(),
                                    [&](const auto& child) { return child->label == name; });
    return found == children.end() ? nullptr : found->get();
}

ExpectedNode* ExpectedNode::findOrAdd(const QString& name)
{
    ExpectedNode* const child = find(name);
    return child != nullptr ? child : add(name);
}

std::unique_ptr<ExpectedNode> ExpectedProperties::build(xml_schema::type& object)
{
    root = std::make_unique<ExpectedNode>();
    enter(object);
    return std::move(root);
}

QSet<QString>& ExpectedProperties::madeRows()
{
    static QSet<QString> rows;
    return rows;
}

ExpectedNode* ExpectedProperties::groupOf(const QString& group)
{
    if (group == "Fields") {
        return fields();
    }
    if (group.startsWith("current")) {
        return current != nullptr ? current : fields();
    }
    const QStringList path = group.split('/');
    ExpectedNode* const part = extension(path.first());
    return path.size() == 1 ? part : part->findOrAdd(path.at(1));
}

void ExpectedProperties::enterAs(ExpectedNode* group, xml_schema::type& object)
{
    ExpectedNode* const outer = current;
    current = group;
    enter(object);
    current = outer;
}

void ExpectedProperties::enterAll(xml_schema::type& owner, const TypeRecord* record, const QString& name,
                                  bool held)
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

void ExpectedProperties::visit(const TypeRecord* record, xml_schema::type& object)
{
    if (record == nullptr) {
        return;
    }
    const QString& name = className(record);
    ExpectedNode* const outer = current;
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
    static const QStringList ending{"core::xalAddressPropertyType",     "utility::ElectricalMediumSupplyType",
                                    "utility::GaseousMediumSupplyType", "utility::LiquidMediumSupplyType",
                                    "utility::OpticalMediumSupplyType", "utility::SolidMediumSupplyType"};
    if (ending.contains(name)) {
        current = nullptr;
    }
}

const TypeRecord* ExpectedProperties::baseWithRows(const QString& name, const TypeRecord* record)
{
    const bool skips =
        name == "energy::_SolarEnergySystemType" || name == "pivotEnergy::StandaloneEmitterType";
    return skips ? record->base->base : record->base;
}

void ExpectedProperties::enterNested(const QString& name, const TypeRecord* record, xml_schema::type& object)
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
                      {"energy::EnergyPerformanceCertificationPropertyType", "energy::VolumeTypePropertyType",
                       "energy::RefurbishmentMeasurePropertyType", "energy::FloorAreaPropertyType",
                       "energy::HeightAboveGroundPropertyType"},
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

const Member* ExpectedProperties::slotOf(const TypeRecord* record)
{
    for (std::size_t i = 0; i < record->memberCount; ++i) {
        if (QString::fromLatin1(record->members[i].name).startsWith("_GenericApplicationPropertyOf")) {
            return &record->members[i];
        }
    }
    return nullptr;
}

void ExpectedProperties::enterMatching(xml_schema::type& owner, const TypeRecord* record,
                                       const QStringList& classes, bool held)
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

QString ExpectedProperties::label(const xml_schema::type& object, const TypeRecord* record,
                                  const QString& text) const
{
    return text == "(name())" ? textsOf(object, findMember(record, "name")).first() : text;
}

QString ExpectedProperties::memberName(const TableRow& row)
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

void ExpectedProperties::makeRows(const QString& name, const TypeRecord* record, xml_schema::type& object)
{
    static const auto table = readTableBy("rows.tsv", "type");
    ExpectedNode* above = nullptr;
    for (const TableRow& row : table.value(name)) {
        const bool below = row.value("depth") == "1";
        if (below && above == nullptr) {
            continue;
        }
        const Member* const member = findAccessor(record, memberName(row));
        const std::size_t count = member == nullptr ? 0 : member->ops->count(object);
        const QString condition = row.value("cond");
        const bool wanted = condition == "always" || count > 0 || (condition == "optional" && !existingOnly);
        if (!wanted) {
            above = below ? above : nullptr;
            continue;
        }
        const auto add = [&](const QString& text) {
            ExpectedNode* const added = (below ? above : groupOf(row.value("group")))->add(text);
            added->row = name + ' ' + row.value("order");
            madeRows() += added->row;
            return added;
        };
        ExpectedNode* const made = makeRow(name, row, record, object, member, add);
        above = below ? above : made;
    }
}

xml_schema::type* ExpectedProperties::firstHeldObject(xml_schema::type& element)
{
    const Member* const external = findMember(recordOf(element), "externalObject");
    return external != nullptr ? &objectAt(element, external, 0) : heldObject(element);
}

void ExpectedProperties::bind(ExpectedNode& made, const QString& name, const TableRow& row,
                              xml_schema::type& object, const Member* member)
{
    const ValueType type(row.value("value_type"));
    made.owner = &object;
    made.member = member;
    made.valueType = row.value("value_type");
    made.editable = true;
    const QString owner = name == "gml::AbstractFeatureType" ? QString("gml::AbstractGMLType") : name;
    made.propertyClass =
        QString(row.value("kind") == "enum" ? "GmlEnumAttributeProperty<" : "GmlAttributeProperty<") + owner +
        ", " + row.value("value_type") + '>';
    made.defaultValue = type.defaultValue();
    made.value = type.fromTexts(valueTexts(object, member, type));
    if (row.value("kind") == "enum") {
        made.literals = enumerationLiterals().value(type.base);
    }
    if (row.value("uom").startsWith("stored") && member->ops->count(object) > 0) {
        made.unit = uomOf(member->ops->at(object, 0));
    }
}

ExpectedNode* ExpectedProperties::makeGroup(const QString& name, ExpectedNode* made)
{
    const bool isSupply = name.endsWith("MediumSupplyType") && name != "utility::AbstractMediumSupplyType";
    if (isSupply || name == "energy::ThermalBoundaryType") {
        current = made;
    }
    return made;
}

QStringList ExpectedProperties::valueTexts(const xml_schema::type& object, const Member* member,
                                           const ValueType& type)
{
    if (type.base != "gml::UnitOfMeasureType") {
        return textsOf(object, member);
    }
    return {uomOf(member->ops->at(object, 0))};
}

QString ExpectedProperties::uomOf(const xml_schema::type& measure)
{
    return textsOf(measure, findMember(recordOf(measure), "uom")).value(0);
}

QVariant ExpectedProperties::currentValue(const ExpectedNode& node)
{
    const ValueType type(node.valueType);
    return node.member != nullptr ? type.fromTexts(valueTexts(*node.owner, node.member, type))
                                  : type.fromText(textOf(*node.owner));
}

void ExpectedProperties::makeGenericRows(const QString& name, const TypeRecord* record,
                                         xml_schema::type& object)
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
        for (const TableRow& row : table.value(operation)) {
            if (isDerived(recordOf(element), recordByClass(row.value("class_matched")))) {
                makeGenericRow(row, element);
            }
        }
    }
}

void ExpectedProperties::makeGenericRow(const TableRow& row, xml_schema::type& element)
{
    const QString kind = row.value("kind");
    xml_schema::type* const nested = kind == "group+held" ? heldObject(element) : &element;
    if (nested == nullptr && row.value("label") != "shading") {
        return;
    }
    ExpectedNode* const made = extension(row.value("group"))->add(row.value("label"));
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
        made->literals = enumerationLiterals().value(type.base);
    }
    if (row.value("uom") == "stored") {
        made->unit = uomOf(element);
    }
}

ExpectedNode* ExpectedProperties::makeRow(const QString& name, const TableRow& row, const TypeRecord* record,
                                          xml_schema::type& object, const Member* member, const Add& add)
{
    const QString kind = row.value("kind");
    const QString text = label(object, record, row.value("label"));
    if (kind == "attr" || kind == "enum") {
        ExpectedNode* const made = add(text);
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
        ExpectedNode* const children = add(text);
        ExpectedNode* const outer = current;
        current = children;
        for (std::size_t i = 0; i < count; ++i) {
            enter(*firstHeldObject(objectAt(object, member, i)));
        }
        current = outer;
        return children;
    }
    ExpectedNode* made = nullptr;
    for (std::size_t i = 0; i < count; ++i) {
        xml_schema::type& element = objectAt(object, member, i);
        if (kind == "reference") {
            made = add(text);
            const QStringList target = textsOf(element, findMember(recordOf(element), "href"));
            made->value = target.isEmpty() ? QVariant() : QVariant(QUrl(target.first(), QUrl::TolerantMode));
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

ExpectedNode* ExpectedProperties::makeReadOnly(const TableRow& row, const TypeRecord* record,
                                               xml_schema::type& object, const Add& add)
{
    const QString name = row.value("label");
    if (name == "Generalize") {
        ExpectedNode* made = nullptr;
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
    ExpectedNode* const made = add(name);
    made->value = value;
    return made;
}

} // namespace testsupport
