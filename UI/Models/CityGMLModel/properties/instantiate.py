#!/usr/bin/env python3
"""Writes the instantiations of the property classes that the rows of a catalogue bind.

Usage: instantiate.py CATALOGUE.cpp OUTPUT.h

Reads the lines ATTR, ENUM, ATTR_BY_NAME, GENERIC and GENERIC_ENUM; the owner of an attribute is the type of the `Rows`
above it.
"""

import re
import sys

TOKEN = re.compile(r"\bRows<(?P<owner>[\w:]+)>|\b(?P<macro>ATTR|ENUM|ATTR_BY_NAME|GENERIC|GENERIC_ENUM)\((?P<row>.*?)\);", re.S)


def instantiations(text):
    """The classes in the order of their first row; a base class comes before the class derived from it."""
    classes = {}
    owner = None
    for token in TOKEN.finditer(text):
        if token["owner"]:
            owner = token["owner"]
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


def main():
    catalogue, output = sys.argv[1:]
    with open(catalogue, encoding="utf-8") as source:
        classes = instantiations(re.sub(r"//.*", "", source.read()))
    lines = ['#include "UI/Models/CityGMLModel/properties/PropertyDefinitions.h"', "", "namespace tolvik {", ""]
    lines += [f"template class CITYGMLMODEL_EXPORT {name};" for name in classes]
    lines += ["", "} // namespace tolvik", ""]
    with open(output, "w", encoding="utf-8") as header:
        header.write("\n".join(lines))


if __name__ == "__main__":
    main()
