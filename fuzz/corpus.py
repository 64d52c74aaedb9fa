#!/usr/bin/env python3
"""Seeds and cases for the fuzz target.

    corpus.py seeds OUTPUT FILE...     small documents, each with a piece of one of the files
    corpus.py pack DIRECTORY FILE      every file of a directory as a line of one file
    corpus.py unpack FILE DIRECTORY    the same back

A line of the packed file is one case. `\\\\`, `\\n`, `\\r`, `\\t` and `\\xNN` stand for a backslash and for bytes that
are no visible ASCII; lines that begin with `#` are comments.
"""

import hashlib
import os
import re
import sys

LARGEST = 1500
ESCAPES = {b"\\": b"\\\\", b"\n": b"\\n", b"\r": b"\\r", b"\t": b"\\t"}
HEADER = """\
# Documents, and what is nearly one, that lead through every corner of the reader and the writer: one a line.
# fuzz/corpus.py packs and unpacks them; the test is tests/binding/readercorpustest.cpp.
"""


def escaped(data):
    def byte(match):
        return ESCAPES.get(match.group()) or b"\\x%02x" % match.group()[0]

    text = re.sub(rb"[^ -\[\]-~]", byte, data)
    # A case that begins like a comment.
    return b"\\x23" + text[1:] if text.startswith(b"#") else text


def unescaped(line):
    named = {value: key for key, value in ESCAPES.items()}

    def byte(match):
        return named.get(match.group()) or bytes([int(match.group()[2:], 16)])

    return re.sub(rb"\\(?:x[0-9a-f]{2}|.)", byte, line)


def write_all(directory, cases):
    os.makedirs(directory, exist_ok=True)
    for data in cases:
        with open(os.path.join(directory, hashlib.sha1(data).hexdigest()), "wb") as f:
            f.write(data)


def seeds(path):
    """Cuts a document into elements of at most LARGEST bytes, each with the tags around it."""
    with open(path, "rb") as f:
        text = re.sub(rb">\s+<", b"><", re.sub(rb"<!--.*?-->|<\?.*?\?>", b"", f.read(), flags=re.S)).strip()
    tokens = re.findall(rb"<[^>]+>|[^<]+", text)
    ends, open_tags = {}, []
    for i, token in enumerate(tokens):
        if token.startswith(b"</"):
            ends[open_tags.pop()] = i
        elif token.startswith(b"<"):
            if token.endswith(b"/>"):
                ends[i] = i
            else:
                open_tags.append(i)
    i, around = 1, [0]
    while i < len(tokens):
        if i not in ends:
            if tokens[i].startswith(b"</"):
                around.pop()
            i += 1
            continue
        content = b"".join(tokens[i : ends[i] + 1])
        if len(content) > LARGEST:
            around.append(i)
            i += 1
            continue
        tags = [tokens[j] for j in around]
        used = set(re.findall(rb"(\w+):", re.sub(rb"""xmlns:\w+=["'][^"']*["']""", b"", b"".join(tags)) + content))
        tags[0] = re.sub(
            rb"""\s+xmlns:(\w+)=["'][^"']*["']""",
            lambda match: match.group() if match.group(1) in used else b"",
            tags[0],
        )
        yield b"".join(tags) + content + b"".join(b"</%s>" % re.match(rb"<([\w:]+)", t).group(1) for t in tags[::-1])
        i = ends[i] + 1


def main():
    command, first, rest = sys.argv[1], sys.argv[2], sys.argv[3:]
    if command == "seeds":
        write_all(first, (case for path in rest for case in seeds(path)))
    elif command == "pack":
        cases = []
        for name in os.listdir(first):
            with open(os.path.join(first, name), "rb") as f:
                cases.append(escaped(f.read()))
        with open(rest[0], "wb") as f:
            f.write(HEADER.encode())
            f.writelines(case + b"\n" for case in sorted(set(cases), key=lambda case: (len(case), case)))
    elif command == "unpack":
        with open(first, "rb") as f:
            write_all(rest[0], (unescaped(line.rstrip(b"\n")) for line in f if not line.startswith(b"#")))
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main()
