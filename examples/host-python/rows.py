#!/usr/bin/python3
"""Prints the features of a CityGML document, and changes one: a script over the plug-in alone.

    rows.py PLUGIN FILE                     prints the features as a tree: type, identifier and name
    rows.py PLUGIN FILE ID PROPERTY VALUE OUT
                                            sets a property of the feature with that identifier, and saves as OUT

PLUGIN is the file of the plug-in, such as lib/tolvik/plugins/CityGMLModelPlugin.so of an installation.

Python sees the models as it sees any QAbstractItemModel; the operations of the plug-in and of a document, which have no
Python classes, are called by name. Schema objects stay out of reach: what a script needs of them comes by role.
"""

import sys

from PyQt5.QtCore import Q_ARG, Q_RETURN_ARG, QMetaObject, QModelIndex, QObject, Qt, QPluginLoader
from PyQt5.QtWidgets import QApplication


def call(target, operation, result, *arguments):
    return QMetaObject.invokeMethod(target, operation, Qt.DirectConnection, Q_RETURN_ARG(result), *arguments)


class Roles:
    """The answers of an index by the names of the roles: Roles(index).name"""

    def __init__(self, index):
        self.index = index

    def __getattr__(self, name):
        return self.index.data(role(self.index.model(), name))


def role(model, name):
    return next(number for number, known in model.roleNames().items() if known == name.encode())


def below(model, parent=QModelIndex()):
    """The indexes below another, each with its depth."""
    for row in range(model.rowCount(parent)):
        index = model.index(row, 0, parent)
        yield 0, index
        for depth, deeper in below(model, index):
            yield depth + 1, deeper


def print_rows(document):
    for depth, index in below(document.property("tree")):
        feature = Roles(index)
        print("  " * depth + " ".join(text for text in (feature.type, feature.identifier, feature.name) if text))


def set_value(document, identifier, name, value):
    for _, index in below(document.property("tree")):
        if Roles(index).identifier == identifier:
            properties = Roles(index).properties
            for _, entry in below(properties):
                if Roles(entry).name == name:
                    return properties.setData(entry, value, role(properties, "value"))
    return False


def main():
    if len(sys.argv) not in (3, 7):
        sys.exit(__doc__)
    application = QApplication(sys.argv[:1])
    loader = QPluginLoader(sys.argv[1])
    plugin = loader.instance()
    if plugin is None:
        sys.exit(loader.errorString())
    document = call(plugin, "createDocument", QObject)
    if not call(document, "load", bool, Q_ARG(str, sys.argv[2])):
        sys.exit(document.property("error"))
    if len(sys.argv) == 3:
        print_rows(document)
        return
    identifier, name, value, out = sys.argv[3:]
    if not set_value(document, identifier, name, value):
        sys.exit("%s has no %s that can be %s" % (identifier, name, value))
    if not call(document, "saveAs", bool, Q_ARG(str, out)):
        sys.exit(document.property("error"))
    del application


if __name__ == "__main__":
    main()
