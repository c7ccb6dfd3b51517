#!/usr/bin/env python3
"""Writes the code blocks of documents as files into a folder.

    extract_code.py FOLDER DOCUMENT...

The first line of a C++ or CMake block names its file ("// Name.cpp", "# CMakeLists.txt"); a C++ block without a name
becomes a file that is named after its document. Shell blocks become commands.sh.
"""
import pathlib
import re
import sys

FENCE = re.compile(r"^```(\w+)\n(.*?)^```$", re.MULTILINE | re.DOTALL)


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True)
    for document in map(pathlib.Path, sys.argv[2:]):
        for language, code in FENCE.findall(document.read_text(encoding="utf-8")):
            if language == "sh":
                with open(folder / "commands.sh", "a", encoding="utf-8") as commands:
                    commands.write(code)
                continue
            name = re.match(r"(?://|#) ([\w.]+\.(?:cpp|h|txt))\n", code)
            if language not in ("cpp", "cmake") or (language == "cmake" and not name):
                sys.exit(f"{document}: a block that no test runs:\n{code}")
            file = folder / (name[1] if name else document.stem + ".cpp")
            if file.exists():
                sys.exit(f"{document}: {file.name} stands twice")
            file.write_text(code, encoding="utf-8")


main()
