#!/usr/bin/env python3
"""Generates the schema binding from the schema files.

    generate.py SCHEMAS OUTPUT

runs the schema compiler over every SCHEMAS/*.xsd, joins what it writes into a fixed number of compilation units, and
writes the visitors and the tables from which documents are read and written. Files whose content has not changed keep
their time stamp, so that an edit of one schema compiles again only what it changes.

    generate.py --units

prints the names of the compilation units, one a line, without making them.
"""

import filecmp
import os
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

XS = "http://www.w3.org/2001/XMLSchema"
JOINED_UNITS = 24
TABLE_UNITS = 6

# Prefix of the visit operations and of the class namespace, in the order of the visitor table.
PREFIXES = (
    "gml SMIL20 namespace xlink component energy epadesa ladmfr pivotEnergy utility app brid bldg frn core grp gen "
    "luse dem tex tran tun veg wtr xAL_2_0"
).split()

# Schema file (without its ending) to prefix, where they differ.
FILE_PREFIX = {"SMIL20_Language": "SMIL20"}


def joined_unit(number):
    return "unit_%02d.cxx" % number


def table_unit(number):
    return "tables_%d.cxx" % number


def units():
    """The compilation units that the generator writes."""
    joined = [joined_unit(number) for number in range(JOINED_UNITS)]
    return joined + [table_unit(number) for number in range(TABLE_UNITS)] + ["tables_all.cxx", "visitors.cxx"]


def cpp_namespace(prefix):
    return "namespace_" if prefix == "namespace" else prefix


class Schema:
    """The facts of all schema files: elements, types, groups, by (namespace, name)."""

    def __init__(self, directory):
        self.prefix_of = {}
        self.elements, self.attributes, self.types, self.groups, self.attribute_groups = {}, {}, {}, {}, {}
        for name in sorted(os.listdir(directory)):
            if name.endswith(".xsd"):
                self._load(os.path.join(directory, name))

    def _load(self, path):
        stem = os.path.splitext(os.path.basename(path))[0]
        bindings = {"xml": "http://www.w3.org/XML/1998/namespace"}
        root = None
        for event, item in ElementTree.iterparse(path, ("start-ns", "start")):
            if event == "start-ns":
                bindings[item[0]] = item[1]
            elif root is None:
                root = item
        target = root.get("targetNamespace")
        self.prefix_of[target] = FILE_PREFIX.get(stem, stem)
        stores = {
            "element": self.elements,
            "attribute": self.attributes,
            "complexType": self.types,
            "simpleType": self.types,
            "group": self.groups,
            "attributeGroup": self.attribute_groups,
        }
        for node in root.iter():
            node.tag = node.tag.replace("{%s}" % XS, "")
            for key in ("type", "ref", "base", "itemType", "substitutionGroup"):
                if key in node.attrib:
                    prefix, _, local = node.get(key).rpartition(":")
                    node.set(key, (bindings[prefix], local))
        for node in root:
            if node.tag in stores:
                node.set("namespace", target)
                stores[node.tag][target, node.get("name")] = node

    def members(self, key):
        """Elements and attributes that a complex type adds to its base, each (kind, namespace, name, node, group).

        `group` numbers the repeated particles of the type whose members may alternate; 0 is none.
        """
        node = self.types[key]
        if node.tag == "simpleType":
            return []
        result, seen, groups = [], set(), [0]

        def add(kind, namespace, name, declaration, group):
            if (kind, namespace, name) not in seen:
                seen.add((kind, namespace, name))
                result.append((kind, namespace, name, declaration, group))

        def particle(item, group):
            if item.tag == "element":
                if item.get("maxOccurs") != "0":
                    declaration = self.elements[item.get("ref")] if "ref" in item.attrib else item
                    namespace, name = item.get("ref") or (key[0], item.get("name"))
                    add("element", namespace, name, declaration, group)
            elif item.tag in ("sequence", "choice", "all", "group"):
                content = self.groups[item.get("ref")] if "ref" in item.attrib else item
                if group == 0 and item.get("maxOccurs", "1") != "1":
                    groups[0] += 1
                    group = groups[0]
                for child in content:
                    particle(child, group)

        def attribute(item):
            if item.tag == "attribute":
                if item.get("use") == "prohibited":
                    return
                if "ref" in item.attrib:
                    declaration = self.attributes[item.get("ref")]
                    add("attribute", *item.get("ref"), merged(item, declaration), 0)
                else:
                    namespace = key_namespace if item.get("form") == "qualified" else ""
                    add("attribute", namespace, item.get("name"), item, 0)
            elif item.tag == "attributeGroup":
                group(item.get("ref"))

        def group(ref):
            nonlocal key_namespace
            outer, key_namespace = key_namespace, ref[0]
            for child in self.attribute_groups[ref]:
                attribute(child)
            key_namespace = outer

        def merged(reference, declaration):
            copy = ElementTree.Element("attribute", dict(declaration.attrib))
            copy.attrib.update({k: v for k, v in reference.attrib.items() if k != "ref"})
            return copy

        key_namespace = key[0]
        content = node
        for child in node:
            if child.tag in ("complexContent", "simpleContent"):
                content = child[0]
                if content.tag == "restriction":
                    return []
        for child in content:
            particle(child, 0)
        for child in content:
            attribute(child)
        return result

    def derivation(self, key):
        """The type's base as (namespace, name), or None."""
        node = self.types[key]
        for child in node.iter():
            if child.tag in ("extension", "restriction"):
                return child.get("base")
        return None

    def is_mixed(self, key):
        node = self.types[key]
        return node.get("mixed") == "true" or any(
            child.tag == "complexContent" and child.get("mixed") == "true" for child in node
        )


class Class:
    """What the schema compiler made of one type: its bases and its members in order."""

    BLOCK = re.compile(r"^namespace (\w+)\n\{\n  class (\w+): (.*?)\n  \};", re.S | re.M)
    MEMBER = re.compile(r"^    // (\S+)\n    //\n((?:    typedef .*?;\n)+)", re.M | re.S)
    TYPE = re.compile(r"typedef (.*?) (\w+)_type;", re.S)
    FIELD = re.compile(r"^    (?:(\w+)_(optional|sequence)|::xsd::cxx::tree::(one)< \w+_type >) (\w+_);", re.M)

    def __init__(self, namespace, name, text):
        self.namespace, self.name = namespace, name
        head, _, body = text.partition("{")
        self.bases = [b.strip() for b in re.split(r",\s*public ", re.sub(r"^public ", "", head.strip()))]
        self.is_enumeration = "    enum value\n" in body
        fields = self.FIELD.findall(body[body.rfind("    protected:") :])
        blocks = [m for m in self.MEMBER.findall(body) if self.TYPE.search(m[1])]
        if len(fields) != len(blocks):
            raise SystemExit("%s::%s: %d members, %d fields" % (namespace, name, len(blocks), len(fields)))
        # (XML name, cardinality, field, value class)
        self.members = [
            (block[0], field[1] or "one", field[3], " ".join(self.TYPE.search(block[1]).group(1).split()))
            for block, field in zip(blocks, fields)
        ]


def run_compiler(schema, directory, output):
    """Runs the schema compiler and returns its classes by (prefix, name)."""
    namespaces = []
    for uri, prefix in schema.prefix_of.items():
        os.makedirs(os.path.join(output, prefix), exist_ok=True)
        namespaces += ["--namespace-map", "%s=%s" % (uri, cpp_namespace(prefix))]
        namespaces += ["--type-file-regex", "%%%s[[:space:]](.+)%%%s/$1%%" % (uri, prefix)]
    builtin = "xml-schema.xsd"
    with open(os.path.join(output, builtin), "w") as f:
        f.write('<xs:schema xmlns:xs="%s" targetNamespace="%s"/>\n' % (XS, XS))
    common = ["xsdcxx", "cxx-tree", "--suppress-parsing", "--custom-type", "anyType=/type_base", "--output-dir", output]
    # With a prefix, since the include guard is made of the file's directory otherwise, which is another in each run.
    subprocess.run(
        common
        + ["--generate-xml-schema", "--guard-prefix", "TOLVIK"]
        + ["--hxx-epilogue", '#include "citygml/SchemaType.h"', os.path.join(output, builtin)],
        check=True,
    )
    files = sorted(f for f in os.listdir(directory) if f.endswith(".xsd"))
    # The silenced warnings: a type that is xs:anyType by default, and substitution groups without the compiler's own
    # polymorphic parsing, which the tables replace.
    quiet = [o for w in ("F001", "F002", "T002") for o in ("--disable-warning", w)]
    subprocess.run(
        common
        + ["--extern-xml-schema", "xml-schema.xsd", "--file-per-type", "--generate-default-ctor"]
        + ["--export-symbol", "TOLVIK_BINDING_EXPORT", "--hxx-prologue", '#include "BindingExport.h"']
        + quiet
        + namespaces
        + files,
        check=True,
        cwd=directory,
    )
    classes = {}
    for prefix in sorted(set(schema.prefix_of.values())):
        for name in sorted(os.listdir(os.path.join(output, prefix))):
            if name.endswith(".hxx"):
                with open(os.path.join(output, prefix, name), encoding="utf-8") as f:
                    text = f.read().replace("class TOLVIK_BINDING_EXPORT ", "class ")
                for namespace, cls, body in Class.BLOCK.findall(text):
                    classes[prefix, cls] = Class(namespace, cls, body)
    return classes


def join_units(output, classes):
    """Joins the compiler's sources, by size, into JOINED_UNITS files."""
    sources = []
    for prefix, name in classes:
        path = "%s/%s.cxx" % (prefix, name)
        if os.path.exists(os.path.join(output, path)):
            sources.append(path)
    per_unit = -(-len(sources) // JOINED_UNITS)
    for number in range(JOINED_UNITS):
        with open(os.path.join(output, joined_unit(number)), "w") as f:
            for path in sources[number * per_unit : (number + 1) * per_unit]:
                f.write('#include "%s"\n' % path)


def write_umbrellas(output, classes):
    """Writes a header with all classes, and one with those of each namespace."""

    def write(path, keys):
        with open(os.path.join(output, path), "w") as f:
            f.write("#pragma once\n\n")
            for prefix, name in keys:
                f.write('#include "%s/%s.hxx"\n' % (prefix, name))

    write("citygml/AllTypes.h", classes)
    for prefix in PREFIXES:
        write("%s/AllTypes.h" % prefix, [key for key in classes if key[0] == prefix])


def ordered(classes):
    return [(p, n) for p in PREFIXES for n in sorted(n for q, n in classes if q == p)]


def write_visitors(output, classes, schema):
    operations = ordered(classes)
    directory = os.path.join(output, "citygml")

    def qualified(key):
        return "%s::%s" % (cpp_namespace(key[0]), key[1])

    namespaces = {}
    for key in operations:
        namespaces.setdefault(cpp_namespace(key[0]), []).append(key[1])
    with open(os.path.join(directory, "CityGMLBaseVisitor.h"), "w") as f:
        f.write('#pragma once\n\n#include "BindingExport.h"\n\n')
        for namespace, names in namespaces.items():
            f.write("namespace %s {\n%s}\n" % (namespace, "".join("class %s;\n" % n for n in names)))
        f.write("\nnamespace citygml {\n\n")
        f.write("/// One operation for each schema type. The result is the visitor's answer about the object; false refuses it.\n")
        f.write("class TOLVIK_BINDING_EXPORT CityGMLBaseVisitor\n{\npublic:\n    virtual ~CityGMLBaseVisitor();\n\n")
        for key in operations:
            f.write("    virtual bool visit_%s_%s(%s* object) = 0;\n" % (key[0], key[1], qualified(key)))
        f.write("};\n\n} // namespace citygml\n")
    with open(os.path.join(directory, "CityGMLInheritVisitor.h"), "w") as f:
        f.write('#pragma once\n\n#include "citygml/CityGMLBaseVisitor.h"\n\nnamespace citygml {\n\n')
        f.write("/// Passes the visit of a type on to the visit of its direct base, through the virtual table, and gives\n")
        f.write("/// back that result. A visit that reaches the top of the chain answers true.\n")
        f.write("class TOLVIK_BINDING_EXPORT CityGMLInheritVisitor : public virtual CityGMLBaseVisitor\n{\npublic:\n")
        f.write("    ~CityGMLInheritVisitor() override;\n\n")
        for key in operations:
            f.write("    bool visit_%s_%s(%s* object) override;\n" % (key[0], key[1], qualified(key)))
        f.write("};\n\n} // namespace citygml\n")
    with open(os.path.join(output, "visitors.cxx"), "w") as f:
        f.write('#include "citygml/AllTypes.h"\n#include "citygml/CityGMLInheritVisitor.h"\n\nnamespace citygml {\n\n')
        f.write("CityGMLBaseVisitor::~CityGMLBaseVisitor() = default;\nCityGMLInheritVisitor::~CityGMLInheritVisitor() = default;\n\n")
        for key in operations:
            base = base_class(classes, key)
            parameter, result = ("object", "visit_%s_%s(object)" % base) if base else ("", "true")
            f.write("bool CityGMLInheritVisitor::visit_%s_%s(%s* %s)\n{\n    return %s;\n}\n" % (*key, qualified(key), parameter, result))
        f.write("\n} // namespace citygml\n")


def base_class(classes, key):
    """The direct base of a class as (prefix, name), or None where it is one of the run-time."""
    match = re.match(r"::(\w+)::(\w+)$", classes[key].bases[0])
    if match:
        base = ("namespace" if match.group(1) == "namespace_" else match.group(1), match.group(2))
        if base in classes:
            return base
    return None


def text_root(classes, key):
    """The C++ class that holds the text of a simple value, or None for a type with elements."""
    while True:
        bases = classes[key].bases
        if any("::xsd::cxx::tree::list<" in b for b in bases):
            return "::%s::%s" % (cpp_namespace(key[0]), key[1])
        base = base_class(classes, key)
        if base:
            key = base
        else:
            return None if bases[0] == "::xml_schema::type" else bases[0]


def literals_owner(classes, key):
    while key:
        if classes[key].is_enumeration:
            return key
        key = base_class(classes, key)
    return None


def c_string(text):
    return '"%s"' % text.replace("\\", "\\\\").replace('"', '\\"')


def write_tables(output, classes, schema):
    key_of = {(schema.prefix_of[ns], name): (ns, name) for ns, name in schema.types}
    operations = ordered(classes)
    builtins = set()

    def record(cpp_type):
        """Name of the record of a member's value class, or None for a fundamental type."""
        match = re.match(r"::(\w+)::(\w+)$", cpp_type)
        namespace, name = match.groups()
        if namespace != "xml_schema":
            return "type_%s_%s" % ("namespace" if namespace == "namespace_" else namespace, name)
        if name in FUNDAMENTAL:
            return None
        builtins.add(name)
        return "builtin_%s" % name

    per_unit = -(-len(operations) // TABLE_UNITS)
    for number in range(TABLE_UNITS):
        with open(os.path.join(output, table_unit(number)), "w") as f:
            f.write('#include "tables.h"\n\nnamespace citygml {\nnamespace binding {\n\n')
            for key in operations[number * per_unit : (number + 1) * per_unit]:
                write_type(f, classes, schema, key, key_of[key], record)
            f.write("} // namespace binding\n} // namespace citygml\n")
    for uri, name in schema.elements:
        node = schema.elements[uri, name]
        if node.get("type")[0] == XS:
            record(cpp_builtin(node.get("type")[1]))
    with open(os.path.join(output, "tables.h"), "w") as f:
        f.write('#pragma once\n\n#include "citygml/AllTypes.h"\n#include "citygml/CityGMLBaseVisitor.h"\n')
        f.write('#include "platform/binding/MemberAccess.h"\n\n')
        f.write("namespace citygml {\nnamespace binding {\n\n")
        for key in operations:
            f.write("extern const TypeRecord type_%s_%s;\n" % key)
        for name in sorted(builtins):
            f.write("extern const TypeRecord builtin_%s;\n" % name)
        f.write("\n} // namespace binding\n} // namespace citygml\n")
    with open(os.path.join(output, "tables_all.cxx"), "w") as f:
        f.write('#include "tables.h"\n\nnamespace citygml {\nnamespace binding {\n\n')
        for name in sorted(builtins):
            cpp = "::xml_schema::" + name
            text = "nullptr" if name == "type" else "&textOps<%s>" % cpp
            f.write(
                "const TypeRecord builtin_%s = {\"%s\", \"%s\", \"%s\", nullptr, &typeid(%s), &create<%s>, &isInstance<%s>, nullptr, %s,"
                " nullptr, 0, nullptr, 0, false, %s};\n"
                % (name, XS, name, name, cpp, cpp, cpp, text, "true" if name == "type" else "false")
            )
        f.write("\nconst TypeRecord* const allTypes[] = {\n")
        for key in operations:
            f.write("    &type_%s_%s,\n" % key)
        for name in sorted(builtins):
            f.write("    &builtin_%s,\n" % name)
        f.write("};\nconst std::size_t allTypesCount = %d;\n\n" % (len(operations) + len(builtins)))
        f.write("const ElementRecord allElements[] = {\n")
        numbers = {key: i for i, key in enumerate(sorted(schema.elements))}
        for key in sorted(schema.elements):
            node = schema.elements[key]
            head = node.get("substitutionGroup")
            uri, name = node.get("type")
            if uri == XS:
                value = record(cpp_builtin(name)) or "nullptr"
            else:
                value = "type_%s_%s" % (schema.prefix_of[uri], name)
            f.write(
                "    {%s, %s, %s, %s, %s},\n"
                % (
                    c_string(key[0]),
                    c_string(key[1]),
                    "&" + value if value != "nullptr" else value,
                    "&allElements[%d]" % numbers[head] if head else "nullptr",
                    "true" if node.get("abstract") == "true" else "false",
                )
            )
        f.write("};\nconst std::size_t allElementsCount = %d;\n\n" % len(schema.elements))
        f.write("} // namespace binding\n} // namespace citygml\n")


FUNDAMENTAL = set(
    "byte unsigned_byte short_ unsigned_short int_ unsigned_int long_ unsigned_long integer non_positive_integer "
    "non_negative_integer positive_integer negative_integer boolean float_ double_ decimal".split()
)


def cpp_builtin(name):
    """The class that the schema compiler gives to a built-in type."""
    special = {"anyType": "type", "anySimpleType": "simple_type", "anyURI": "uri", "NCName": "ncname", "QName": "qname",
               "dateTime": "date_time", "gYear": "gyear", "ID": "id", "IDREF": "idref", "IDREFS": "idrefs",
               "NMTOKEN": "nmtoken", "NMTOKENS": "nmtokens", "Name": "name", "normalizedString": "normalized_string",
               "int": "int_", "long": "long_", "short": "short_", "double": "double_", "float": "float_",
               "nonNegativeInteger": "non_negative_integer", "positiveInteger": "positive_integer",
               "gYearMonth": "gyear_month", "gMonth": "gmonth", "gMonthDay": "gmonth_day", "gDay": "gday",
               "unsignedInt": "unsigned_int", "unsignedLong": "unsigned_long"}
    return "::xml_schema::" + special.get(name, name)


def write_type(f, classes, schema, key, xml_key, record):
    cls = classes[key]
    cpp = "::%s::%s" % (cls.namespace, cls.name)
    name = "%s_%s" % key
    declared = schema.members(xml_key)
    if [m[2] for m in declared] != [m[0] for m in cls.members]:
        raise SystemExit("%s: the class has %s, the schema %s" % (name, [m[0] for m in cls.members], [m[2] for m in declared]))
    node = schema.types[xml_key]
    if cls.members:
        f.write("namespace {\nstruct Open_%s : %s\n{\n" % (name, cpp))
        for i, member in enumerate(cls.members):
            f.write("    static constexpr auto m%d = &Open_%s::%s;\n" % (i, name, member[2]))
        f.write("};\nconst Member members_%s[] = {\n" % name)
        for i, ((kind, uri, xml_name, declaration, group), (_, cardinality, _, value)) in enumerate(zip(declared, cls.members)):
            default = declaration.get("default", declaration.get("fixed")) if kind == "attribute" else None
            value_record = record(value)
            f.write(
                "    {%s, %s, %s, %s, %s, %d, %s, &memberOps<Open_%s::m%d>},\n"
                % (
                    c_string(uri),
                    c_string(xml_name),
                    "true" if kind == "attribute" else "false",
                    "true" if cardinality == "one" and default is None else "false",
                    c_string(default) if default is not None else "nullptr",
                    group,
                    "&" + value_record if value_record else "nullptr",
                    name,
                    i,
                )
            )
        f.write("};\n}\n")
    base = base_class(classes, key)
    root = text_root(classes, key)
    literals = literals_owner(classes, key)
    if literals:
        owner = "::%s::%s" % (cpp_namespace(literals[0]), literals[1])
        array = "%s::_xsd_%s_literals_" % (owner, literals[1])
        literals_text = "%s, sizeof(%s) / sizeof(*%s)" % (array, array, array)
    else:
        literals_text = "nullptr, 0"
    label = cls.name[:-4] if cls.name.endswith("Type") and len(cls.name) > 4 else cls.name
    abstract = node.get("abstract") == "true"
    f.write(
        "const TypeRecord type_%s = {%s, %s, %s, %s, &typeid(%s), &create<%s>, &isInstance<%s>, &visit<%s, &CityGMLBaseVisitor::visit_%s>, %s,"
        " %s, %d, %s, %s, %s};\n\n"
        % (
            name,
            c_string(xml_key[0]),
            c_string(xml_key[1]),
            c_string(label),
            "&type_%s_%s" % base if base else "nullptr",
            cpp,
            cpp,
            cpp,
            cpp,
            name,
            "&textOps<%s>" % root if root else "nullptr",
            "members_%s" % name if cls.members else "nullptr",
            len(cls.members),
            literals_text,
            "true" if abstract else "false",
            "true" if schema.is_mixed(xml_key) else "false",
        )
    )


def update(source, target):
    """Makes target what source is, touching only what differs."""
    for directory, _, names in os.walk(source):
        relative = os.path.relpath(directory, source)
        os.makedirs(os.path.join(target, relative), exist_ok=True)
        for name in names:
            new, old = os.path.join(directory, name), os.path.join(target, relative, name)
            if not os.path.exists(old) or not filecmp.cmp(new, old, shallow=False):
                shutil.copyfile(new, old)
    for directory, _, names in os.walk(target):
        relative = os.path.relpath(directory, target)
        for name in names:
            if not os.path.exists(os.path.join(source, relative, name)):
                os.remove(os.path.join(directory, name))


def main():
    if sys.argv[1:] == ["--units"]:
        print("\n".join(units()))
        return
    schemas, target = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
    schema = Schema(schemas)
    with tempfile.TemporaryDirectory() as output:
        os.makedirs(os.path.join(output, "citygml"))
        classes = run_compiler(schema, schemas, output)
        join_units(output, classes)
        write_umbrellas(output, classes)
        write_visitors(output, classes, schema)
        write_tables(output, classes, schema)
        update(output, target)


if __name__ == "__main__":
    main()
