"""Finds texts of the desktop program that a translation lacks.

usage: translationstest.py ROOT

Lists the texts of the source anew, over copies of the translations, and prints what is unfinished then. Also
compares the places for values and the keys of menus in each text with those of its translation. Ends with 77,
which counts as skipped, where there is no lupdate.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree


def places(text):
    """The places for values in a text, such as %1, in any order."""
    return sorted(set(re.findall(r"%L?([0-9n])", text)))


def faults(path):
    """A line for each text of a translation that is not as it should be."""
    for context in ElementTree.parse(path).iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            source = message.findtext("source")
            translation = message.find("translation")
            forms = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
            where = f"{path.name}: {name}: {source!r}"
            if translation.get("type") or not all(forms):
                yield f"{where} is not translated"
            elif any(places(form) != places(source) for form in forms if "%n" not in source):
                yield f"{where} has other places for values in its translation"
            elif re.search(r"&[^&; ]", source) and not all(re.search(r"&[^&; ]", form) for form in forms):
                yield f"{where} has a key, and its translation has none"


def main():
    if shutil.which("lupdate") is None:
        print("there is no lupdate")
        return 77
    root = pathlib.Path(sys.argv[1])
    source = root / "apps/viewer/translations"
    with tempfile.TemporaryDirectory() as folder:
        for path in source.glob("*.ts"):
            shutil.copy(path, folder)
        subprocess.run([source / "update.sh", folder], check=True)
        files = sorted(pathlib.Path(folder).glob("*.ts"))
        found = [line for path in files for line in faults(path)]
    print("\n".join(found))
    return 1 if found or len(files) != 3 else 0


if __name__ == "__main__":
    sys.exit(main())
