#!/usr/bin/env python3
"""Writes a libFuzzer dictionary of the names that documents are made of.

    dictionary.py SCHEMAS OUTPUT

Every element, attribute, namespace and enumerated value of SCHEMAS/*.xsd, and the marks of XML.
"""

import os
import sys
import xml.etree.ElementTree as ElementTree

XS = "{http://www.w3.org/2001/XMLSchema}"
XML = (
    "<!-- -->",
    "<?p i?>",
    "<![CDATA[",
    "]]>",
    "<!DOCTYPE a [<!ENTITY e 'v'>]>",
    "<!ATTLIST a b CDATA 'v'>",
    "&e;",
    "&#x41;",
    "&amp;",
    "&lt;",
    " xmlns='",
    " xmlns:x='urn:x'",
    " xmlns:a='",
    "x:",
    " xsi:type='",
    " xsi:nil='true'",
    " xsi:schemaLocation='a b'",
    " xml:lang='en'",
    " xml:space='preserve'",
    " xlink:href='#i'",
    " gml:id='i'",
    "http://www.w3.org/2001/XMLSchema-instance",
    "<?xml version='1.0' encoding='ISO-8859-1'?>",
    "true",
    "0 0 0 1 1 1",
    "1e308",
    "-INF",
    "NaN",
    "2009-04-02+00:00",
    "2009-04-02T24:00:00.5Z",
    "P1Y2M3DT4H5M6.5S",
)


def main():
    words = dict.fromkeys(XML)
    directory = sys.argv[1]
    for name in sorted(os.listdir(directory)):
        if not name.endswith(".xsd"):
            continue
        prefix = os.path.splitext(name)[0]
        root = ElementTree.parse(os.path.join(directory, name)).getroot()
        target = root.get("targetNamespace")
        words[target] = None
        if target.startswith("http://www.opengis.net/citygml/"):
            words[target.replace("2.0", "1.0")] = None
        for node in root.iter():
            if node.tag == XS + "element" and "name" in node.attrib:
                words["<%s:%s>" % (prefix, node.get("name"))] = None
                words["</%s:%s>" % (prefix, node.get("name"))] = None
            elif node.tag == XS + "attribute" and "name" in node.attrib:
                words[" %s='" % node.get("name")] = None
            elif node.tag == XS + "enumeration":
                words[node.get("value")] = None
    with open(sys.argv[2], "w", encoding="utf-8") as f:
        for word in words:
            text = "".join(
                c if " " <= c <= "~" and c not in '"\\' else "".join("\\x%02X" % b for b in c.encode()) for c in word
            )
            f.write('"%s"\n' % text)


if __name__ == "__main__":
    main()
