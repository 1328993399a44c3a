#!/usr/bin/env python3
"""Check that docs/interfaces.md says what the sources say.

Compares the tables of message types and ids with the enumerations, the fields of the messages with those that
the sources read and write, the values of the registry and of the database with their keys, and the names,
numbers and limits of the other interfaces with the constants.

Exit code 0 means that there is nothing to report.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGE = "docs/interfaces.md"
PROTOCOL = "device/DealChannelMsg.cpp"

# File, pattern with the constant as its group, and how the page states it ("{}" is the constant).
CONSTANTS = (
    ("portalhub/MessageLine.h", r"MaxLineLength = qsizetype\{(\d+)\} \* 1024 \* 1024", "more than {} MiB"),
    ("portalhub/ChannelClient.h", r"capacity = qsizetype\{(\d+)\} \* 1024 \* 1024", "at {} MiB"),
    ("device/DisplayState.cpp", r"MaximumModes = (\d+)", "the last {} modes"),
    ("device/VideoReceiver.cpp", r'MappingName = "(\w+)"', "| memory | `{}` |"),
    ("device/VideoReceiver.cpp", r'EventName = "(\w+)"', "| announcement | `{}` |"),
    ("device/FrameHeader.h", r"MaximumDataSize = ([\d']+)", "up to {} |"),
    ("device/FrameHeader.h", r"ViewSize = ([\d']+)", "The view has {} bytes"),
    ("device/PointerLink.cpp", r"ReceivePort = (\d+)", "| {} | to the program |"),
    ("device/PointerLink.cpp", r"PointerPort = (\d+)", "| {} | from the program |"),
    ("device/PointerDatagram.cpp", r'bytes\("(\w+)"\)', "| 0 | 4 | `{}` |"),
    ("device/UdpClient.cpp", r"DatagramsPerTurn = (\d+)", "reads {} datagrams"),
    ("device/UdpClient.cpp", r"MaximumQueued = (\d+)", "newest {} for the log"),
    ("account/RequestGuard.h", r"requestTimeout = (\d+)'000", "within {} s, or goes on"),
    ("account/RequestGuard.h", r"bodySize = (\d+)LL \* 1024 \* 1024", "sends more than {} MiB"),
    ("account/AccountText.cpp", r"LongestMessage = (\d+)", "a message at {} characters"),
    ("account/AccountText.cpp", r"LongestToken = (\d+)", "a token at {},"),
    ("account/AccountText.cpp", r"LongestText = (\d+)", "other texts at {};"),
    ("account/ImageFile.h", r"MaxFileSize = (\d+)LL \* 1024 \* 1024", "at most {} MiB and 256 million points"),
    ("account/ImageFile.h", r"MaxSourcePixels = (\d+)'000'000", "MiB and {} million points"),
    ("account/ImageFile.h", r"MaxDecodedSize = (\d+)LL \* 1024 \* 1024", "takes at most {} MiB beside"),
    ("peripherals/DeviceRules.h", r"MaxRulesOfKind = (\d+)", "at most {} a kind"),
    ("logging/LogFile.h", r"maxTotalBytes = qint64\{(\d+)\}", "have at most {} MiB"),
    ("launch/UpgradeControl.cpp", r'u"(PatchPilot\.exe)"', "`{}` beside the program"),
    ("app/Main.cpp", r'instance\(u"(\w+)"', "| mark | `{}` |"),
    ("app/SingleInstance.cpp", r'QByteArray\("(\w+)"\)', "bytes `{}`"),
    ("app/WindowManager.cpp", r'write\("(\w+)"\)', "5 bytes `{}`"),
    ("app/WindowManager.h", r"peerWait = std::chrono::seconds\((\d+)\)", "at the latest after {} s"),
)


def read(path: str) -> str:
    return (ROOT / path).read_text(encoding="utf-8")


def enumerators(source: str, name: str) -> dict[int, str]:
    body = re.search(rf"enum class {name} : int \{{(.*?)\}}", source, re.DOTALL).group(1)
    return {int(number): key for key, number in re.findall(r"(\w+) = (\d+)", body)}


def table(page: str, first_column: str) -> list[list[str]]:
    """Cells of the rows of the table whose first column has this title."""
    lines = page.splitlines()
    start = next(i for i, line in enumerate(lines) if line.startswith(f"| {first_column} |"))
    rows = []
    for line in lines[start + 2 :]:
        if not line.startswith("|"):
            break
        rows.append([cell.strip() for cell in line.strip("|").split("|")])
    return rows


def quoted(text: str) -> set[str]:
    return set(re.findall(r"`(\w+)`", text))


def keys(source: str, namespace: str) -> set[str]:
    body = re.search(rf"namespace {namespace}\n\{{(.*?)\}} // namespace", source, re.DOTALL).group(1)
    return {value for value in re.findall(r'\{"([^"]+)"\}', body) if "\\" not in value}


def main() -> int:
    page = read(PAGE)
    problems = []

    def compare(what: str, in_page: object, in_sources: object) -> None:
        if in_page != in_sources:
            problems.append(f"{what}: the page has {in_page}, the sources have {in_sources}")

    ids = read("device/ChannelMessage.h")
    for title, enumeration in (("type", "ChannelMessageType"), ("id", "ChannelCommand")):
        rows = {int(row[0]): row[1].strip("`") for row in table(page, title)}
        compare(f"table of {title}s", rows, enumerators(ids, enumeration))

    protocol = read(PROTOCOL)
    used = set(re.findall(r'\{u"(\w+)"_s, ', protocol)) | set(re.findall(r'(?:message\[|message, )"(\w+)"_L1', protocol))
    fields = set().union(*(quoted(row[2]) for row in table(page, "id")))
    compare("fields of the messages", sorted(fields), sorted(used - {"cmd", "seq", "type"}))

    names = read("persistence/Keys.h")
    compare("values of the registry", {row[0].strip("`") for row in table(page, "value")}, keys(names, "registry"))
    database = next(row[2] for row in table(page, "file") if row[0] == "`userdata.db`")
    compare("keys of the database", quoted(database.split("; keys ")[1]), keys(names, "user"))

    for path, pattern, statement in CONSTANTS:
        match = re.search(pattern, read(path))
        if not match:
            problems.append(f"{path} no longer holds {pattern}")
        elif (text := statement.format(match.group(1).replace("'", ""))) not in page:
            problems.append(f"{PAGE} does not say: {text} ({path})")

    for problem in problems:
        print(f"check-interfaces: {problem}", file=sys.stderr)
    if not problems:
        print(f"check-interfaces: {PAGE} agrees with the sources in {len(CONSTANTS)} constants and 4 tables")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
