#!/usr/bin/env python3
"""Writes the instantiations of the property classes that the rows of a catalogue bind.

Usage: instantiate.py CATALOGUE.cpp Catalogue.h OUTPUT.h

Reads the lines ATTR, ENUM, ATTR_BY_NAME, GENERIC and GENERIC_ENUM, also where Catalogue.h defines a name for several of
them; the owner of an attribute is the type of the ROWS or ROWS_OF above it.
"""

import re
import sys

TOKEN = re.compile(
    r"\bROWS\((?P<prefix>\w+), (?P<type>\w+),|\bROWS_OF\((?P<owner>[\w:]+)\)"
    r"|\b(?P<macro>ATTR|ENUM|ATTR_BY_NAME|GENERIC|GENERIC_ENUM)\((?P<row>.*?)\);",
    re.S,
)


def expand_row_groups(text, words):
    """The text with the rows in place of the names that the header of the catalogues' words has for several."""
    for name, rows in re.findall(r"^#define (\w+)\(\)((?:.*\\\n)+.*)", words, re.M):
        text = text.replace(f"{name}();", rows.replace("\\\n", "\n") + ";")
    return text


def instantiations(text):
    """The classes in the order of their first row; a base class comes before the class derived from it."""
    classes = {}
    owner = None
    for token in TOKEN.finditer(text):
        if not token["macro"]:
            owner = token["owner"] or f"{token['prefix']}::{token['type']}"
            continue
        columns = [" ".join(column.split()) for column in token["row"].split(",")]
        if token["macro"] in ("GENERIC", "GENERIC_ENUM"):
            arguments = f"{columns[1]}, {columns[-2]}"
            names = ["GmlGenericApplicationAttributeProperty", "GmlEnumGenericApplicationAttributeProperty"]
        else:
            arguments = f"{owner}, {columns[2]}"
            names = ["GmlAttributeProperty", "GmlEnumAttributeProperty"]
        for name in names if "ENUM" in token["macro"] else names[:1]:
            classes[f"{name}<{arguments}>"] = None
    return classes


def read(path):
    """The text of a source file without its comments."""
    with open(path, encoding="utf-8") as source:
        return re.sub(r"//.*", "", source.read())


def main():
    catalogue, words, output = sys.argv[1:]
    classes = instantiations(expand_row_groups(read(catalogue), read(words)))
    lines = ['#include "UI/Models/CityGMLModel/properties/PropertyDefinitions.h"', "", "namespace tolvik {", ""]
    lines += [f"template class CITYGMLMODEL_EXPORT {name};" for name in classes]
    lines += ["", "} // namespace tolvik", ""]
    with open(output, "w", encoding="utf-8") as header:
        header.write("\n".join(lines))


if __name__ == "__main__":
    main()
