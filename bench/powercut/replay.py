#!/usr/bin/env python3
"""Cuts the power at random moments of a record of file changes and checks what is left.

    replay.py <record> <folder as it was before> <scratch folder> <checker> <seed> <changes> <cuts>

What the disk holds after a cut: a file has the content of its last sync, and of the later writes those that
happened to be written; a folder has the names of its last sync, and of the later changes those that happened
to be written. A write reaches the disk in sectors of 512 bytes. Four kinds of disks take turns:

    nothing    what was not synced is lost
    in order   a first part of the later changes of each file and folder is there
    any order  each sector and each name is there or not, by chance
    all        everything but the last change is there
"""

import collections
import os
import random
import shutil
import struct
import subprocess
import sys

SECTOR = 512
HEADER = struct.Struct("=5Q")
KINDS = ("nothing", "in order", "any order", "all")
GOOD = ("current", "lost")
# Old enough that a lock file left behind counts as left behind.
AGE = 3600


class File:
    def __init__(self, content=b""):
        self.synced = bytearray(content)
        self.later = []  # writes as (offset, bytes), sizes as (size, None)

    @staticmethod
    def apply(content, offset, data):
        if data is None:
            del content[offset:]
            content.extend(bytes(offset - len(content)))
            return
        content.extend(bytes(max(0, offset + len(data) - len(content))))
        content[offset : offset + len(data)] = data

    def change(self, offset, data):
        self.later.append((offset, data))

    def sync(self):
        for change in self.later:
            self.apply(self.synced, *change)
        self.later = []

    def after_cut(self, kind, chance):
        content = bytearray(self.synced)
        for offset, data in survivors(sectors(self.later), kind, chance):
            self.apply(content, offset, data)
        return content


class Folder:
    def __init__(self):
        self.synced = {}
        self.later = []  # (name, File, Folder or None)
        self.names = {}

    def change(self, *entries):
        """Several names at once are one change, as a renaming is."""
        self.later.append(entries)
        apply_names(self.names, entries)

    def sync(self):
        self.synced = dict(self.names)
        self.later = []

    def after_cut(self, kind, chance):
        names = dict(self.synced)
        for entries in survivors(self.later, kind, chance):
            apply_names(names, entries)
        return names


def apply_names(names, entries):
    for name, node in entries:
        if node is None:
            names.pop(name, None)
        else:
            names[name] = node


def sectors(changes):
    for offset, data in changes:
        if data is None:
            yield offset, None
            continue
        at = 0
        while at < len(data):
            end = min(len(data), at + SECTOR - (offset + at) % SECTOR)
            yield offset + at, data[at:end]
            at = end


def survivors(changes, kind, chance):
    changes = list(changes)
    if kind == "nothing":
        return []
    if kind == "in order":
        return changes[: chance.randint(0, len(changes))]
    if kind == "any order":
        return [change for change in changes if chance.random() < 0.5]
    return changes


class Disk:
    def __init__(self, before):
        self.root = Folder()
        self.opened = {}  # files and folders by the number of the record
        self.progress = {"begin": 0, "done": 0}
        self.load(before, self.root)

    def load(self, path, folder):
        for entry in os.scandir(path):
            if entry.is_dir():
                node = Folder()
                self.load(entry.path, node)
            else:
                with open(entry.path, "rb") as file:
                    node = File(file.read())
            folder.change((entry.name, node))
        folder.sync()

    def place(self, path):
        *parents, name = path.split("/")
        folder = self.root
        for parent in parents:
            folder = folder.names[parent]
        return folder, name

    def node(self, path):
        node = self.root
        for name in path.split("/") if path else []:
            node = node.names[name]
        return node

    def perform(self, kind, number, offset, first, second):
        if kind == "W":
            self.opened[number].change(offset, first)
            return
        first = first.decode()
        if kind == "C":
            self.opened[number] = File()
            if first:
                self.link(first, self.opened[number])
        elif kind == "D":
            self.link(first, Folder())
        elif kind == "L":
            self.link(first, self.opened[number])
        elif kind == "O":
            self.opened[number] = self.node(first)
        elif kind == "T":
            self.opened[number].change(offset, None)
        elif kind == "U":
            folder, name = self.place(first)
            folder.change((name, None))
        elif kind == "R":
            self.rename(first, second.decode())
        elif kind == "S":
            self.opened[number].sync()
        elif kind == "M":
            word, step = first.split()
            self.progress[word] = int(step)

    def link(self, path, node):
        folder, name = self.place(path)
        folder.change((name, node))

    def rename(self, first, second):
        source, old = self.place(first)
        target, new = self.place(second)
        node = source.names[old]
        if source is target:
            source.change((old, None), (new, node))
        else:
            target.change((new, node))
            source.change((old, None))

    def write_after_cut(self, target, kind, chance, folder=None):
        folder = folder or self.root
        os.makedirs(target)
        for name, node in folder.after_cut(kind, chance).items():
            path = os.path.join(target, name)
            if isinstance(node, Folder):
                self.write_after_cut(path, kind, chance, node)
                continue
            with open(path, "wb") as file:
                file.write(node.after_cut(kind, chance))
            then = os.stat(path).st_mtime - AGE
            os.utime(path, (then, then))


def read_records(path):
    with open(path, "rb") as file:
        while header := file.read(HEADER.size):
            kind, number, offset, first, second = HEADER.unpack(header)
            yield chr(kind), number, offset, file.read(first), file.read(second)


def moments_of_interest(records):
    """All but marks and writes to the log, which are most of the records."""
    logs = set()
    for at, (kind, number, _, first, _) in enumerate(records):
        if kind in "CO":
            (logs.add if first.startswith(b"log/") else logs.discard)(number)
        if kind != "M" and number not in logs:
            yield at


def main():
    record, before, scratch, checker, seed, changes, cuts = sys.argv[1:]
    records = list(read_records(record))
    chance = random.Random(int(seed))
    changing = list(moments_of_interest(records))
    moments = sorted(chance.choice(changing) for _ in range(int(cuts)))
    check = subprocess.Popen([checker, seed, changes], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                             stderr=open(scratch + ".log", "w"), text=True)
    disk = Disk(before)
    results = collections.defaultdict(collections.Counter)
    bad = 0
    at = 0
    for count, moment in enumerate(moments):
        while at <= moment:
            disk.perform(*records[at])
            at += 1
        kind = KINDS[count % len(KINDS)]
        target = os.path.join(scratch, str(count))
        disk.write_after_cut(target, kind, chance)
        kept = target + ".kept"
        shutil.copytree(target, kept)
        check.stdin.write(f"{target} {disk.progress['begin']} {disk.progress['done']}\n")
        check.stdin.flush()
        words = check.stdout.readline().split()
        if len(words) != 3:
            sys.exit(f"the checker ended at {kept}, see {scratch}.log")
        for what, word in zip(("account", "config.ini", "registry"), words):
            results[what, word][kind] += 1
        shutil.rmtree(target)
        if all(word in GOOD for word in words):
            shutil.rmtree(kept)
        else:
            bad += 1
            print(f"bad: {' '.join(words)}, disk '{kind}', after record {moment}, "
                  f"begun {disk.progress['begin']}, done {disk.progress['done']}: {kept}")
    check.stdin.close()
    syncs = sum(each[0] == "S" for each in records)
    print(f"{len(records)} records, {syncs} of them syncs; {len(moments)} cuts\n")
    print(f"{'what':12}{'state':14}" + "".join(f"{kind:>11}" for kind in KINDS) + f"{'sum':>8}")
    for (what, word), counts in sorted(results.items()):
        print(f"{what:12}{word:14}" + "".join(f"{counts[kind]:11}" for kind in KINDS)
              + f"{counts.total():8}")
    print(f"\n{bad} bad")
    sys.exit(bad > 0)


main()
