#!/usr/bin/env python3
"""Compares the schema classes of the project with those that the published schemas give.

    comparereference.py PROJECT REFERENCE

For every type of the published schemas: its name, its base, and its members in order, each with accessor, cardinality
and value type. Exits with 77 where the published schemas are not at hand.
"""

import os
import re
import subprocess
import sys
import tempfile

NUMBERED = re.compile(r"^xAL_2_0::(TypeOccurrence|IndicatorOccurrence|NumberTypeOccurrence|NumberType)\d$")


def published_schemas(directory):
    found = {}
    for folder, _, names in os.walk(directory):
        for name in names:
            if name.endswith(".xsd"):
                path = os.path.join(folder, name)
                with open(path, encoding="utf-8") as f:
                    found[path] = re.search(r'targetNamespace="([^"]*)"', f.read()).group(1)
    return found


def compile_published(generate, schema, directory, output):
    """The classes of the published schemas, by (C++ namespace, name)."""
    files = published_schemas(directory)
    root = os.path.join(output, "all.xsd")
    with open(root, "w", encoding="utf-8") as f:
        f.write('<xs:schema xmlns:xs="%s" targetNamespace="urn:all">\n' % generate.XS)
        for path, namespace in files.items():
            # The files of GML include one another.
            if namespace != "http://www.opengis.net/gml" or path.endswith("gml.xsd"):
                f.write('<xs:import namespace="%s" schemaLocation="%s"/>\n' % (namespace, path))
        f.write("</xs:schema>\n")
    options = ["--namespace-map", "urn:all=all"]
    for uri, prefix in schema.prefix_of.items():
        if uri in files.values():
            options += ["--namespace-map", "%s=%s" % (uri, generate.cpp_namespace(prefix))]
    result = subprocess.run(
        ["xsdcxx", "cxx-tree", "--suppress-parsing", "--custom-type", "anyType=/type_base", "--output-dir", output]
        + ["--extern-xml-schema", "xml-schema.xsd", "--file-per-type", "--generate-default-ctor"]
        + options
        + [root],
        capture_output=True,
        text=True,
    )
    if result.returncode != 0:
        sys.exit("the published schemas do not compile:\n" + result.stderr[-2000:])
    classes = {}
    for name in os.listdir(output):
        if name.endswith(".hxx"):
            with open(os.path.join(output, name), encoding="utf-8") as f:
                for namespace, cls, body in generate.Class.BLOCK.findall(f.read()):
                    classes[namespace, cls] = generate.Class(namespace, cls, body)
    return classes


def facts(cls):
    """What has to be the same; types of which the compiler merges repeated ones count as one."""

    def merged(name):
        return name[:-1] if NUMBERED.match(name.lstrip(":")) else name

    members = [(name, kind, field, merged(value)) for name, kind, field, value in cls.members]
    return [re.sub(r"\s+", " ", b) for b in cls.bases], members


def main():
    project, reference = (os.path.abspath(path) for path in sys.argv[1:3])
    if not os.path.isdir(reference):
        print("no published schemas at", reference)
        sys.exit(77)
    sys.path.insert(0, os.path.join(project, "platform", "binding"))
    import generate

    schema = generate.Schema(os.path.join(project, "schemas"))
    with tempfile.TemporaryDirectory() as ours_dir, tempfile.TemporaryDirectory() as theirs_dir:
        ours = generate.run_compiler(schema, os.path.join(project, "schemas"), ours_dir)
        theirs = compile_published(generate, schema, reference, theirs_dir)
    ours = {(generate.cpp_namespace(prefix), name): cls for (prefix, name), cls in ours.items()}
    different = 0
    for key, cls in sorted(theirs.items()):
        name = "::".join(key)
        if key not in ours:
            print("missing:", name)
        elif facts(ours[key]) != facts(cls):
            print("different: %s\n  published %s\n  project   %s" % (name, facts(cls), facts(ours[key])))
        else:
            continue
        different += 1
    published_namespaces = {key[0] for key in theirs}
    for key in sorted(set(ours) - set(theirs)):
        if key[0] in published_namespaces and not NUMBERED.match("::".join(key)):
            print("not published:", "::".join(key))
            different += 1
    print("%d published types, %d differences" % (len(theirs), different))
    sys.exit(1 if different or len(theirs) < 700 else 0)


if __name__ == "__main__":
    main()
