"""Prints the code block of a language from a Markdown page: recipe.py PAGE LANGUAGE

A page has one block at most of each language that is asked for."""

import re
import sys


def block(page, language):
    with open(page, encoding="utf-8") as file:
        found = re.findall(r"^```%s\n(.*?)^```$" % re.escape(language), file.read(), re.MULTILINE | re.DOTALL)
    if len(found) != 1:
        sys.exit("%s: %d blocks of %s, not one" % (page, len(found), language))
    return found[0]


if __name__ == "__main__":
    sys.stdout.write(block(sys.argv[1], sys.argv[2]))
