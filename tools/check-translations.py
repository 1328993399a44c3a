#!/usr/bin/env python3
"""Check that every translation holds exactly the texts of the sources.

Collects the texts with lupdate and compares them with translations/*.ts. Reports

- a text that a translation lacks, and one that is no longer in the sources;
- an entry that is empty or marked as unfinished or obsolete;
- placeholders such as %1 or %n that differ between source and translation;
- a blank or a line break at the end of one of them that the other lacks;
- a file that translations/CMakeLists.txt does not name, and a language there without a file.

Exit code 0 means that there is nothing to report.
"""

import collections
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from collections.abc import Iterator

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = ROOT / "translations"
LUPDATE = "/usr/lib/qt6/bin/lupdate"
SOURCES = ("qml/*.qml", "account/*.cpp", "account/*.h", "app/*.cpp", "app/*.h")
PLACEHOLDER = re.compile(r"%L?[1-9n]")

Key = tuple[str, str, str]  # context, source text, disambiguation


def read(path: pathlib.Path) -> dict[Key, ElementTree.Element]:
    """The <message> elements of a .ts file."""
    messages = {}
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment", ""))
            messages[key] = message
    return messages


def texts_of_sources() -> dict[Key, ElementTree.Element]:
    files = subprocess.run(
        ["git", "ls-files", *SOURCES], cwd=ROOT, check=True, capture_output=True, text=True
    ).stdout.split()
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "texts.ts"
        subprocess.run([LUPDATE, "-silent", "-I", ".", *files, "-ts", path], cwd=ROOT, check=True)
        return read(path)


def translations_of(message: ElementTree.Element) -> list[str]:
    translation = message.find("translation")
    forms = translation.findall("numerusform")
    return [form.text or "" for form in forms] if forms else [translation.text or ""]


def ending(text: str) -> str:
    return text[len(text.rstrip()) :]


def faults_of(source: str, message: ElementTree.Element) -> Iterator[str]:
    if kind := message.find("translation").get("type"):
        yield f"is marked as {kind}"
    for text in translations_of(message):
        if not text.strip():
            yield "has no translation"
            continue
        # A plural form may do without the number, as in "one file".
        ignored = {"%n"} if message.get("numerus") else set()
        wanted = collections.Counter(p for p in PLACEHOLDER.findall(source) if p not in ignored)
        found = collections.Counter(p for p in PLACEHOLDER.findall(text) if p not in ignored)
        if wanted != found:
            yield f"has other placeholders: {text!r}"
        if ending(source) != ending(text):
            yield f"ends with other blanks: {text!r}"


def faults() -> Iterator[str]:
    named = re.search(r"set\(languages ([^)]*)\)", (FOLDER / "CMakeLists.txt").read_text()).group(1).split()
    files = {path.stem.removeprefix("VORNApp_"): path for path in FOLDER.glob("*.ts")}
    for language in sorted(set(named) ^ set(files)):
        yield f"{language}: is not both in translations/CMakeLists.txt and a file of that folder"
    wanted = texts_of_sources()
    for language, path in sorted(files.items()):
        found = read(path)
        for context, source, _ in wanted.keys() - found.keys():
            yield f"{language}: {context}: {source!r} is missing"
        for context, source, _ in found.keys() - wanted.keys():
            yield f"{language}: {context}: {source!r} is not in the sources"
        for (context, source, _), message in found.items():
            for fault in faults_of(source, message):
                yield f"{language}: {context}: {source!r} {fault}"


def main() -> int:
    found = list(faults())
    print(*found, sep="\n", end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
