#!/usr/bin/env python3
"""Prints the stack of a crash dump of Windows.

dump-to-stack.py [--all] <dump> <folder>...

The folders hold the program's files of the same build (VORNApp.exe and its libraries) and their symbols
(VORNApp.exe.debug). A frame in a library whose file is missing is found by searching the stack for an address of
code, and marked with a question mark. With --all the stacks of all threads are printed, otherwise that of the thread
that crashed. Needs addr2line and nm for MinGW.
"""
import argparse
import bisect
import pathlib
import shutil
import struct
import subprocess
import sys

SYMBOLS = {}
MOST_FRAMES = 100
THREAD_LIST, MODULE_LIST, MEMORY_LIST, EXCEPTION = 3, 4, 5, 6
RSP, RIP = 4, 16
CONTEXT_REGISTERS = 0x78  # offset of RAX; the 17 registers lie in the order of their numbers, RIP last
EXCEPTIONS = {
    0x80000003: "breakpoint",
    0xC0000005: "access violation",
    0xC0000006: "in-page error",
    0xC000001D: "illegal instruction",
    0xC0000094: "division by zero",
    0xC00000FD: "stack overflow",
    0xC0000374: "corrupted heap",
    0xE0564F52: "uncaught C++ exception",
    0xE0564F53: "abort()",
}


class Image:
    """A program or library with its table of functions for unwinding."""

    def __init__(self, path):
        self.data = path.read_bytes()
        header = self.u32(0x3C)
        optional = header + 24
        if self.u16(optional) != 0x20B:
            raise ValueError(f"{path} is not a 64-bit program")
        self.base = struct.unpack_from("<Q", self.data, optional + 24)[0]
        table = optional + self.u16(header + 20)
        self.sections = [
            (self.u32(at + 12), self.u32(at + 16), self.u32(at + 20), self.u32(at + 36))
            for at in range(table, table + 40 * self.u16(header + 6), 40)
        ]
        address, size = struct.unpack_from("<II", self.data, optional + 112 + 3 * 8)
        offset = self.offset(address) if size else None
        self.functions = [] if offset is None else [
            struct.unpack_from("<III", self.data, offset + i) for i in range(0, size - 11, 12)
        ]
        self.starts = [function[0] for function in self.functions]

    def u16(self, offset):
        return struct.unpack_from("<H", self.data, offset)[0]

    def u32(self, offset):
        return struct.unpack_from("<I", self.data, offset)[0]

    def offset(self, address):
        for start, size, offset, _ in self.sections:
            if start <= address < start + size:
                return offset + address - start
        return None

    def is_code(self, address):
        return any(start <= address < start + size and flags & 0x20000000
                   for start, size, _, flags in self.sections)

    def function(self, address):
        at = bisect.bisect_right(self.starts, address) - 1
        if at >= 0 and address < self.functions[at][1]:
            return self.functions[at]
        return None


class Module:
    def __init__(self, base, size, name):
        self.base, self.size = base, size
        self.name = name.replace("\\", "/").rsplit("/", 1)[-1]
        self.image = None
        self.symbols = None


class Dump:
    def __init__(self, path):
        self.data = path.read_bytes()
        signature, _, count, directory = struct.unpack_from("<4sIII", self.data)
        if signature != b"MDMP":
            raise ValueError(f"{path} is not a crash dump")
        self.streams = {}
        for i in range(count):
            kind, _, offset = struct.unpack_from("<III", self.data, directory + 12 * i)
            self.streams[kind] = offset
        self.modules = self.read_modules()
        self.memory = []
        self.threads = self.read_threads()
        self.exception = self.read_exception()

    def entries(self, stream, size):
        if stream not in self.streams:
            return
        at = self.streams[stream]
        for i in range(struct.unpack_from("<I", self.data, at)[0]):
            yield at + 4 + i * size

    def read_modules(self):
        modules = []
        for at in self.entries(MODULE_LIST, 108):
            base, size, _, _, name = struct.unpack_from("<QIIII", self.data, at)
            length = struct.unpack_from("<I", self.data, name)[0]
            modules.append(Module(base, size, self.data[name + 4:name + 4 + length].decode("utf-16-le")))
        return modules

    def read_threads(self):
        threads = {}
        for at in self.entries(THREAD_LIST, 48):
            self.add_memory(at + 24)
            context = struct.unpack_from("<I", self.data, at + 44)[0]
            threads[struct.unpack_from("<I", self.data, at)[0]] = self.registers(context)
        for at in self.entries(MEMORY_LIST, 16):
            self.add_memory(at)
        return threads

    def add_memory(self, at):
        start, size, offset = struct.unpack_from("<QII", self.data, at)
        self.memory.append((start, size, offset))

    def registers(self, context):
        return list(struct.unpack_from("<17Q", self.data, context + CONTEXT_REGISTERS))

    def read_exception(self):
        """(thread, code, address, parameters) of the crash; the thread's registers become those at the crash."""
        if EXCEPTION not in self.streams:
            return None
        at = self.streams[EXCEPTION]
        thread, _, code, _, _, address, count, _ = struct.unpack_from("<IIIIQQII", self.data, at)
        parameters = struct.unpack_from(f"<{min(count, 15)}Q", self.data, at + 40)
        context = struct.unpack_from("<I", self.data, at + 164)[0]
        self.threads[thread] = self.registers(context)
        return thread, code, address, parameters

    def read(self, address):
        """The 8 bytes at an address as a number; None if the dump does not hold them."""
        for start, size, offset in self.memory:
            if start <= address and address + 8 <= start + size:
                return struct.unpack_from("<Q", self.data, offset + address - start)[0]
        return None

    def module(self, address):
        for module in self.modules:
            if module.base <= address < module.base + module.size:
                return module
        return None


class Unwinder:
    """Walks up a stack: by the functions' unwinding codes where the file is there, otherwise by search."""

    def __init__(self, dump):
        self.dump = dump

    def frames(self, registers):
        registers = list(registers)
        certain = True
        for depth in range(MOST_FRAMES):
            module = self.dump.module(registers[RIP])
            if not module:
                if depth:
                    return
                yield registers[RIP], None, certain  # a call of an address that is no code
            else:
                # A return address can lie behind the end of its function.
                yield registers[RIP] - (1 if depth else 0), module, certain
            stack = registers[RSP]
            certain = bool(module and module.image)
            if certain:
                ok = self.unwind(registers, module, depth == 0)
            else:
                # A call of an address without code leaves its return address on top of the stack.
                ok = depth == 0 and not module and self.pop(registers) or self.search(registers)
            if not ok or registers[RSP] <= stack:
                return

    def search(self, registers):
        at = (registers[RSP] + 7) & ~7
        while (value := self.dump.read(at)) is not None:
            at += 8
            module = self.dump.module(value)
            if module and (not module.image or module.image.is_code(value - module.base)):
                registers[RIP], registers[RSP] = value, at
                return True
        return False

    def unwind(self, registers, module, is_innermost):
        address = registers[RIP] - module.base
        function = module.image.function(address if is_innermost else address - 1)
        while function:
            start, _, information = function
            in_prolog = address - start if is_innermost else 0xFF
            function, returned = self.apply(registers, module.image, information & ~1, in_prolog)
            if returned is not None:
                return returned
            is_innermost = False
        return self.pop(registers)

    def pop(self, registers):
        value = self.dump.read(registers[RSP])
        if value is None:
            return False
        registers[RIP] = value
        registers[RSP] += 8
        return True

    def apply(self, registers, image, information, in_prolog):
        """Undoes a function's prolog. Returns (function to continue with, result if it set the next frame)."""
        at = image.offset(information)
        flags, _, count, frame = struct.unpack_from("<BBBB", image.data, at)
        codes = struct.unpack_from(f"<{count}H", image.data, at + 4)
        frame_register, frame_offset = frame & 15, (frame >> 4) * 16
        i = 0
        while i < count:
            offset, operation, value = codes[i] & 0xFF, codes[i] >> 8 & 15, codes[i] >> 12
            extra = {1: 2 if value else 1, 4: 1, 5: 2, 8: 1, 9: 2}.get(operation, 0)
            words = codes[i + 1:i + 1 + extra]
            i += 1 + extra
            if offset > in_prolog:
                continue
            if operation == 0:  # push
                registers[value] = self.dump.read(registers[RSP]) or 0
                registers[RSP] += 8
            elif operation == 1:  # large allocation
                registers[RSP] += words[0] | words[1] << 16 if value else words[0] * 8
            elif operation == 2:  # small allocation
                registers[RSP] += value * 8 + 8
            elif operation == 3:  # frame register
                registers[RSP] = registers[frame_register] - frame_offset
            elif operation in (4, 5):  # register saved with a move
                distance = words[0] * 8 if operation == 4 else words[0] | words[1] << 16
                registers[value] = self.dump.read(registers[RSP] + distance) or 0
            elif operation == 10:  # frame of an interrupt
                at_frame = registers[RSP] + 8 * value
                registers[RIP] = self.dump.read(at_frame) or 0
                registers[RSP] = self.dump.read(at_frame + 24) or 0
                return None, registers[RIP] != 0
        if flags >> 3 & 4:  # the rest of the codes is those of another function
            return struct.unpack_from("<III", image.data, at + 4 + 2 * (count + count % 2)), None
        return None, None


def find_files(dump, folders):
    """Finds the files of the modules and their symbols, with any case of the letters."""
    files = {path.name.lower(): path for folder in folders for path in sorted(folder.rglob("*")) if path.is_file()}
    for module in dump.modules:
        name = module.name.lower()
        if name in files:
            module.image = Image(files[name])
        module.symbols = files.get(name + ".debug", files.get(name) if module.image else None)


def symbols_of(path):
    """(addresses, names) of the functions in a file, which are there without debugging information too."""
    if path not in SYMBOLS:
        lines = run(["x86_64-w64-mingw32-nm", "-C", "-n", str(path)])
        functions = [line.split(" ", 2) for line in lines if line[17:18] in ("T", "t")]
        SYMBOLS[path] = ([int(function[0], 16) for function in functions], [function[2] for function in functions])
    return SYMBOLS[path]


def run(command):
    if not shutil.which(command[0]):
        return []
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout.splitlines()


def describe(module, address):
    """The lines for a place in the code; several where functions were compiled into their callers."""
    if not module:
        return [f"{address:#x}"]
    place = f"{module.name}+{address - module.base:#x}"
    if not (module.image and module.symbols):
        return [place]
    in_file = module.image.base + address - module.base
    result = run(["x86_64-w64-mingw32-addr2line", "-f", "-C", "-i", "-e", str(module.symbols), hex(in_file)])
    lines = [f"{place}  {function}" + ("" if line.startswith("??") else f"  {line}")
             for function, line in zip(result[::2], result[1::2]) if function != "??"]
    if lines:
        return lines
    addresses, names = symbols_of(module.symbols)
    at = bisect.bisect_right(addresses, in_file) - 1
    return [f"{place}  {names[at]}" if at >= 0 else place]


def print_stack(dump, thread):
    for number, (address, module, certain) in enumerate(Unwinder(dump).frames(dump.threads[thread])):
        for line in describe(module, address):
            print(f"{number:4}{' ' if certain else '?'} {line}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--all", action="store_true")
    parser.add_argument("dump", type=pathlib.Path)
    parser.add_argument("folders", type=pathlib.Path, nargs="*", metavar="folder")
    arguments = parser.parse_args()
    try:
        dump = Dump(arguments.dump)
    except (OSError, ValueError, struct.error) as error:
        sys.exit(f"{arguments.dump}: {error}")
    find_files(dump, arguments.folders)
    crashed = None
    if dump.exception:
        crashed, code, address, parameters = dump.exception
        what = EXCEPTIONS.get(code, "exception")
        if code == 0xC0000005 and len(parameters) > 1:
            access = {0: "reading", 1: "writing", 8: "executing"}.get(parameters[0], "accessing")
            what += f" {access} {parameters[1]:#x}"
        print(f"Thread {crashed} crashed: {what} ({code:#x}) at {address:#x}")
        print_stack(dump, crashed)
    for thread in dump.threads if arguments.all or not dump.exception else []:
        if thread != crashed:
            print(f"\nThread {thread}")
            print_stack(dump, thread)


if __name__ == "__main__":
    main()
