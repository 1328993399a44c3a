#!/usr/bin/env python3
"""Render the pictures of qml/images/svg to PNG at 1x, 2x and 3x, and the program icon to ICO.

Needs rsvg-convert (Debian: librsvg2-bin) and nothing else. The output depends only on the sources
and on the versions of librsvg and zlib: no time stamp, no text chunk. Run it after every change of
a source and commit both.

    tools/render-images.py                  render everything
    tools/render-images.py arrow_up close   render these only
    tools/render-images.py --app-icons DIR  write DIR/<size>x<size>/VORNApp.png for packaging
"""

import argparse
import concurrent.futures
import pathlib
import re
import struct
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
import zlib

IMAGES = pathlib.Path(__file__).resolve().parent.parent / "qml" / "images"
SOURCES = IMAGES / "svg"
SCALES = (1, 2, 3)
APP_ICON = "VORNApp"
APP_ICON_SMALL = "VORNApp_small"  # the same mark, drawn for sizes where the other one blurs
SMALL_LIMIT = 24
ICO_SIZES = (16, 24, 32, 48, 64, 128, 256)
PACKAGE_SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)

PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"
# Above this many pixels a picture is a scene with more colours than a palette holds.
PALETTE_PIXEL_LIMIT = 1 << 18


def chunk(kind: bytes, data: bytes) -> bytes:
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def read_chunks(png: bytes):
    position = len(PNG_SIGNATURE)
    while position < len(png):
        (length,) = struct.unpack_from(">I", png, position)
        yield png[position + 4 : position + 8], png[position + 8 : position + 8 + length]
        position += length + 12


def paeth(left: int, up: int, corner: int) -> int:
    estimate = left + up - corner
    distances = (abs(estimate - left), abs(estimate - up), abs(estimate - corner))
    return (left, up, corner)[distances.index(min(distances))]


def unfilter(raw: bytes, height: int, stride: int, step: int) -> list[bytearray]:
    """Undo the PNG row filters; step is the number of bytes a pixel."""
    rows, previous = [], bytearray(stride)
    for y in range(height):
        start = y * (stride + 1)
        kind, row = raw[start], bytearray(raw[start + 1 : start + 1 + stride])
        for i in range(stride if kind else 0):
            left = row[i - step] if i >= step else 0
            up = previous[i]
            corner = previous[i - step] if i >= step else 0
            guess = (0, left, up, (left + up) // 2, paeth(left, up, corner))[kind]
            row[i] = (row[i] + guess) & 255
        rows.append(row)
        previous = row
    return rows


def palette_png(header: bytes, raw: bytes) -> bytes | None:
    """The picture as a PNG with a palette, or None when it has more than 256 colours."""
    width, height = struct.unpack_from(">II", header)
    rows = unfilter(raw, height, width * 4, 4)
    pixels = [[bytes(row[x : x + 4]) for x in range(0, width * 4, 4)] for row in rows]
    # Fully transparent pixels are one colour; the most transparent come first, so that the
    # transparency table can end with the last of them.
    clear = bytes(4)
    pixels = [[pixel if pixel[3] else clear for pixel in row] for row in pixels]
    colours = sorted({pixel for row in pixels for pixel in row}, key=lambda p: (p[3], p))
    if len(colours) > 256:
        return None
    index = {colour: i for i, colour in enumerate(colours)}
    data = b"".join(b"\0" + bytes(index[pixel] for pixel in row) for row in pixels)
    alpha = bytes(colour[3] for colour in colours if colour[3] < 255)
    return (
        PNG_SIGNATURE
        + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 3, 0, 0, 0))
        + chunk(b"PLTE", b"".join(colour[:3] for colour in colours))
        + (chunk(b"tRNS", alpha) if alpha else b"")
        + chunk(b"IDAT", zlib.compress(data, 9))
        + chunk(b"IEND", b"")
    )


def shrink(png: bytes, allow_palette: bool) -> bytes:
    """Drop what is no picture data, pack tighter, use a palette where nothing is lost by it."""
    header, raw = b"", b""
    for kind, data in read_chunks(png):
        header = data if kind == b"IHDR" else header
        raw += data if kind == b"IDAT" else b""
    raw = zlib.decompress(raw)
    plain = (
        PNG_SIGNATURE
        + chunk(b"IHDR", header)
        + chunk(b"IDAT", zlib.compress(raw, 9))
        + chunk(b"IEND", b"")
    )
    width, height, depth, colour_type = struct.unpack_from(">IIBB", header)
    if not allow_palette or (depth, colour_type) != (8, 6) or width * height > PALETTE_PIXEL_LIMIT:
        return plain
    packed = palette_png(header, raw)
    return packed if packed and len(packed) < len(plain) else plain


def render(source: pathlib.Path, width: int, height: int, allow_palette: bool = True) -> bytes:
    command = ["rsvg-convert", "--format=png", f"--width={width}", f"--height={height}"]
    result = subprocess.run([*command, str(source)], check=True, stdout=subprocess.PIPE)
    return shrink(result.stdout, allow_palette)


def source_size(source: pathlib.Path) -> tuple[int, int]:
    """The 1x size, which the root element states and a size in the file name must agree with."""
    root = ElementTree.parse(source).getroot()
    size = int(root.get("width", "0")), int(root.get("height", "0"))
    named = re.search(r"_(\d+)x(\d+)$", source.stem)
    if min(size) < 1 or (named and size != tuple(map(int, named.groups()))):
        sys.exit(f"{source.name}: the root element says {size[0]} x {size[1]}")
    return size


def write_picture(source: pathlib.Path) -> None:
    width, height = source_size(source)
    for scale in SCALES:
        suffix = "" if scale == 1 else f"@{scale}x"
        target = IMAGES / f"{source.stem}{suffix}.png"
        target.write_bytes(render(source, width * scale, height * scale))


def render_app_icon(size: int) -> bytes:
    # Windows takes only 32-bit pictures in an icon file.
    stem = APP_ICON_SMALL if size <= SMALL_LIMIT else APP_ICON
    return render(SOURCES / f"{stem}.svg", size, size, allow_palette=False)


def write_ico() -> None:
    pictures = [render_app_icon(size) for size in ICO_SIZES]
    offset = 6 + 16 * len(pictures)
    directory = struct.pack("<HHH", 0, 1, len(pictures))
    for size, picture in zip(ICO_SIZES, pictures):
        side = size % 256  # the format writes 256 as 0
        directory += struct.pack("<BBBBHHII", side, side, 0, 0, 1, 32, len(picture), offset)
        offset += len(picture)
    (IMAGES / f"{APP_ICON}.ico").write_bytes(directory + b"".join(pictures))


def write_package_icons(folder: pathlib.Path) -> None:
    for size in PACKAGE_SIZES:
        target = folder / f"{size}x{size}" / f"{APP_ICON}.png"
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(render_app_icon(size))


def main() -> None:
    parser = argparse.ArgumentParser(description="Render the program's pictures.")
    parser.add_argument("names", nargs="*", help="pictures without ending; none means all")
    parser.add_argument("--app-icons", type=pathlib.Path, metavar="DIR")
    arguments = parser.parse_args()
    if arguments.app_icons:
        write_package_icons(arguments.app_icons)
        return

    sources = {path.stem: path for path in sorted(SOURCES.glob("*.svg"))}
    wanted = arguments.names or list(sources)
    unknown = [name for name in wanted if name not in sources]
    if unknown:
        sys.exit(f"no source for: {', '.join(unknown)}")
    with concurrent.futures.ThreadPoolExecutor() as pool:
        pictures = [sources[name] for name in wanted if not name.startswith(APP_ICON)]
        list(pool.map(write_picture, pictures))
    if any(name.startswith(APP_ICON) for name in wanted):
        write_ico()


if __name__ == "__main__":
    main()
