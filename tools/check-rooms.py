#!/usr/bin/env python3
"""Check that every room includes only what its target names.

Reads the CMakeLists.txt of each folder and the #include lines of the sources that a target lists. Reports

- an include of a header whose target, Qt module or library is not among USES and PRIVATE_USES;
- an entry of USES that no header of the room includes, which belongs in PRIVATE_USES;
- an entry of either that no source of the room includes;
- a room of the product that names a target of the simulator, the tests or the benchmarks;
- a source of a room's folder that no CMakeLists.txt lists.

Exit code 0 means that there is nothing to report.
"""

import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SUPPORT = ("bench", "framewriter", "fuzz", "rig", "simulator", "tests", "tools")  # folders that the product stands without
SETTINGS = "vorn_settings"  # compiler settings, linked by every target
SOURCE_LISTS = ("SOURCES", "WINDOWS_SOURCES", "LINUX_SOURCES")
INCLUDE = re.compile(r'^\s*#\s*include\s+[<"]([^>"]+)[>"]', re.MULTILINE)
COMMAND = re.compile(
    r"^\s*(vorn_add_room|add_library|target_link_libraries|target_sources)\s*\(([^)]*)\)", re.MULTILINE
)


class Target:
    def __init__(self, name: str, folder: pathlib.Path, is_interface: bool) -> None:
        self.name = name
        self.folder = folder
        self.is_interface = is_interface
        self.is_room = False
        self.sources: list[pathlib.Path] = []
        self.public: set[str] = set()
        self.private: set[str] = set()

    def is_support(self) -> bool:
        return self.folder.parts[:1] != () and self.folder.parts[0] in SUPPORT


def split_lists(words: list[str], names: tuple[str, ...], first: str) -> dict[str, list[str]]:
    """The words after each of the names; those before the first name come under `first`."""
    lists: dict[str, list[str]] = {name: [] for name in (first, *names)}
    current = first
    for word in words:
        if word in names:
            current = word
        else:
            lists[current].append(word)
    return lists


class Tree:
    def __init__(self) -> None:
        self.targets: dict[str, Target] = {}
        self.listed: set[pathlib.Path] = set()
        self.owners: dict[pathlib.Path, set[str]] = {}
        for path in tracked("CMakeLists.txt", "**/CMakeLists.txt", "**/*.cmake"):
            self.read(path)

    def read(self, path: pathlib.Path) -> None:
        text = re.sub(r"#.*", "", (ROOT / path).read_text(encoding="utf-8"))
        for name, value in re.findall(r"\bset\s*\(\s*(\w+)\s+([^)$]*)\)", text):
            text = text.replace("${" + name + "}", " " + value + " ")
        for command, body in COMMAND.findall(text):
            words = body.replace('"', " ").split()
            if words:
                getattr(self, command)(path.parent, words[0], words[1:])
        # Lists that reach a target by a variable.
        for word in re.findall(r"[\w./-]+\.(?:cpp|h)\b", text):
            self.listed.add(pathlib.Path(os.path.normpath(path.parent / word)))

    def add(self, folder: pathlib.Path, name: str, sources: list[str], is_interface: bool = False) -> Target:
        target = self.targets.setdefault(name, Target(name, folder, is_interface))
        for source in sources:
            if re.search(r"\.(cpp|h)$", source) and "$" not in source:
                target.sources.append(folder / source)
                self.owners.setdefault(folder / source, set()).add(name)
        return target

    def vorn_add_room(self, folder: pathlib.Path, name: str, words: list[str]) -> None:
        lists = split_lists(words, (*SOURCE_LISTS, "USES", "PRIVATE_USES"), "")
        sources = [source for key in SOURCE_LISTS for source in lists[key]]
        target = self.add(folder, f"vorn_{name}", sources)
        target.is_room = True
        target.public.update(word for word in lists["USES"] if "$" not in word)
        target.private.update(word for word in lists["PRIVATE_USES"] if "$" not in word)

    def add_library(self, folder: pathlib.Path, name: str, words: list[str]) -> None:
        self.add(folder, name, words, "INTERFACE" in words)

    def target_sources(self, folder: pathlib.Path, name: str, words: list[str]) -> None:
        if name in self.targets:
            self.add(folder, name, words)

    def target_link_libraries(self, folder: pathlib.Path, name: str, words: list[str]) -> None:
        target = self.targets.get(name)
        if target:
            lists = split_lists(words, ("PUBLIC", "INTERFACE", "PRIVATE"), "")
            target.private.update(lists["PRIVATE"])
            target.public.update(lists[""] + lists["PUBLIC"] + lists["INTERFACE"])

    def reach(self, names: set[str]) -> set[str]:
        """The targets named, and what an interface target among them passes on."""
        reached: set[str] = set()
        waiting = list(names)
        while waiting:
            name = waiting.pop()
            if name not in reached:
                reached.add(name)
                target = self.targets.get(name)
                if target and target.is_interface:
                    waiting.extend(target.public)
        return reached

    def owners_of(self, include: str, room: Target) -> set[str]:
        """The targets or the library that a header belongs to; none for the system's headers."""
        module = qt_module(include)
        if module:
            return {module}
        if include.startswith("glog/"):
            return {"glog::glog"}
        for folder in (pathlib.Path(), room.folder, *(target.folder for target in self.targets.values())):
            if folder / include in self.owners:
                return self.owners[folder / include]
        return set()


def tracked(*patterns: str) -> list[pathlib.Path]:
    command = ["git", "ls-files", "--", *(f":(glob){pattern}" for pattern in patterns)]
    output = subprocess.run(command, cwd=ROOT, check=True, stdout=subprocess.PIPE, text=True).stdout
    return [pathlib.Path(line) for line in output.splitlines() if (ROOT / line).exists()]


QT_MODULES: dict[str, str] = {}


def qt_module(include: str) -> str | None:
    if not QT_MODULES:
        query = ["qmake6", "-query", "QT_INSTALL_HEADERS"]
        headers = subprocess.run(query, check=True, stdout=subprocess.PIPE, text=True).stdout.strip()
        for header in pathlib.Path(headers).glob("Qt*/*"):
            QT_MODULES.setdefault(header.name, f"Qt6::{header.parent.name[2:]}")
    return QT_MODULES.get(include.split("/")[-1])


def check_room(tree: Tree, room: Target) -> list[str]:
    problems = []
    named = tree.reach(room.public | room.private)
    used: dict[str, bool] = {}  # whether a header needs it
    for source in room.sources:
        text = (ROOT / source).read_text(encoding="utf-8")
        for include in INCLUDE.findall(text):
            owners = tree.owners_of(include, room)
            if not owners or room.name in owners or "Qt6::Core" in owners:
                continue
            for owner in owners & named:
                used[owner] = used.get(owner, False) or source.suffix == ".h"
            if not owners & named:
                owner = " or ".join(sorted(owners))
                problems.append(f"{source}: includes {include} of {owner}, which {room.name} does not name")
    for name in sorted(room.public | room.private):
        if name in (SETTINGS, "Qt6::Core"):
            continue
        reached = tree.reach({name}) & used.keys()
        target = tree.targets.get(name)
        if not reached and (target is None or any(source.suffix == ".h" for source in target.sources)):
            if "::" in name or target:
                problems.append(f"{room.folder}: {room.name} names {name} and includes nothing of it")
        elif name in room.public and reached and not any(used[part] for part in reached):
            problems.append(f"{room.folder}: no header of {room.name} needs {name}: move it to PRIVATE_USES")
        if target and target.is_support() and not room.is_support():
            problems.append(f"{room.folder}: {room.name} belongs to the product and names {name}")
    return problems


def main() -> None:
    tree = Tree()
    problems = []
    rooms = [target for target in tree.targets.values() if target.is_room]
    if not rooms:
        sys.exit("check-rooms: no room was found")
    for room in rooms:
        problems += check_room(tree, room)
    for source in tracked("**/*.cpp", "**/*.h"):
        if source not in tree.listed and source.parts[:1] != ("tests",) and source.parent.name != "windows-headers":
            problems.append(f"{source}: no CMakeLists.txt lists it")
    for problem in problems:
        print(problem)
    if problems:
        sys.exit(f"check-rooms: {len(problems)} problems in {len(rooms)} rooms")
    print(f"check-rooms: {len(rooms)} rooms include what they name")


if __name__ == "__main__":
    main()
