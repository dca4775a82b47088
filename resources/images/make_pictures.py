#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""Draws every picture of the program and writes it beside this script.

Needs rsvg-convert (librsvg2-bin) and python3-pil.  The results are kept in the
repository, so building the program needs neither.

The line pictures are described in SHAPES below and also written as SVG files
to source/.  They become opaque grey GIF files, black on white, in which the
darkness is the coverage; the program paints them in the colour of the text.
The program icon is drawn from source/quillets*.svg, which are edited by hand.
"""

import io
import struct
import subprocess
from pathlib import Path

from PIL import Image

HERE = Path(__file__).resolve().parent
SOURCE = HERE / "source"
SCALES = (1, 2, 3)

HEAD = ("<!-- SPDX-FileCopyrightText: 2026 The Quillets developers -->\n"
        "<!-- SPDX-License-Identifier: MIT -->\n")

# Grid size: stroke width, side and corner radius of the "down" square.  On the
# 16 and 20 grids the lines run through pixel centres (n.5); on the 24 grid they
# are two pixels wide and run between pixels (n).  The shapes of the 20 grid lie
# about (9.5, 9.5), so that a line down their middle is sharp too.
GRIDS = {16: (1.3, 16, 3.5), 20: (1.4, 19, 4.5), 24: (2, 24, 5.5)}


def circle(x, y, r):
    return f"M{x - r:g} {y:g}a{r:g} {r:g} 0 1 1 {2 * r:g} 0a{r:g} {r:g} 0 1 1 {-2 * r:g} 0z"


def box(x, y, w, h, r):
    return (f"M{x + r:g} {y:g}h{w - 2 * r:g}a{r:g} {r:g} 0 0 1 {r:g} {r:g}v{h - 2 * r:g}"
            f"a{r:g} {r:g} 0 0 1 {-r:g} {r:g}h{2 * r - w:g}a{r:g} {r:g} 0 0 1 {-r:g} {-r:g}"
            f"v{2 * r - h:g}a{r:g} {r:g} 0 0 1 {r:g} {-r:g}z")


# Name: grid, up file, down file, then the strokes in drawing order.  Each is
# "line" (stroked), "fill" (filled) or "gap" (a wide stroke of background).
SHAPES = {
    # Title bar and toolbar of a note.
    "note-stack": (16, "closeup", None, [
        ("line", box(2.5, 6.5, 11, 7, 1.2) + "M4.5 4.5h7M6.5 2.5h3")]),
    "note-delete": (16, "minimizeup", None, [
        ("line", "M3.8 3.8l8.4 8.4M12.2 3.8l-8.4 8.4")]),
    "note-pressed": (16, None, "closeactive", [
        ("fill", circle(8, 8, 3))]),
    "note-menu": (16, "menuup", "menudown", [
        ("line", "M3 3.5h10M3 7.5h10M3 11.5h10")]),
    "note-help": (16, "helpupsmall", "helpdownsmall", [
        ("line", "M5 5.5a3 3 0 1 1 4.8 2.4c-1.1.8-1.8 1.3-1.8 2.4"),
        ("fill", circle(8, 13, 1))]),
    "note-settings": (16, "settingsupsmall", "settingsdownsmall", [
        ("line", "M2.5 4.5h5.5M12 4.5h1.5M2.5 11.5h1.5M8 11.5h5.5"
         + circle(10, 4.5, 2) + circle(6, 11.5, 2))]),
    "note-email": (16, "emailupsmall", "emaildownsmall", [
        ("line", box(2.5, 3.5, 11, 9, 1.2) + "M3 4.3l5 4.4 5-4.4")]),
    "note-send": (16, "sendupsmall", "senddownsmall", [
        ("line", "M13.5 2.5L2.5 6.7l4.7 2.1 2.1 4.7zM13.5 2.5L7.2 8.8")]),
    "note-alarm": (16, "alarmupsmall", "alarmdownsmall", [
        ("line", circle(8, 9, 4.5) + "M7.5 6.7v2.8h2M2.6 4.8l2-1.9M13.4 4.8l-2-1.9")]),
    "note-password": (16, "passwordupsmall", "passworddownsmall", [
        ("line", box(3.5, 7.5, 9, 6, 1.2) + "M5.5 7.5V5a2.5 2.5 0 0 1 5 0v2.5"),
        ("fill", circle(8, 10.5, 1))]),
    "note-resize": (16, "resize", None, [
        ("line", "M13.5 4.5l-9 9M13.5 8.5l-5 5M13.5 12.5l-1 1")]),

    # Main panel.
    "panel-new": (20, "panelnewup", "panelnewdown", [
        ("line", "M4 2.5h11a1.5 1.5 0 0 1 1.5 1.5v8.5l-4 4h-8.5a1.5 1.5 0 0 1-1.5-1.5v-11"
         "a1.5 1.5 0 0 1 1.5-1.5zM16.5 12.5h-2.8a1.2 1.2 0 0 0-1.2 1.2v2.8"
         "M8.5 5.5v6M5.5 8.5h6")]),
    "panel-notestack": (20, "panelnotestackup", "panelnotestackdown", [
        ("line", box(2.5, 8.5, 14, 8, 1.5) + "M4.5 5.5h10M6.5 2.5h6")]),
    "panel-to-notestack": (20, "paneldtonup", "paneldtondown", [
        ("line", "M5.5 8.5h-1.5a1.5 1.5 0 0 0-1.5 1.5v5a1.5 1.5 0 0 0 1.5 1.5h11"
         "a1.5 1.5 0 0 0 1.5-1.5v-5a1.5 1.5 0 0 0-1.5-1.5h-1.5"
         "M4.5 5.5h2.3M12.2 5.5h2.3M9.5 2.5v11M7 11l2.5 2.5 2.5-2.5")]),
    "panel-to-desktop": (20, "panelntodup", "panelntoddown", [
        ("line", "M5.5 4.5h-1.5a1.5 1.5 0 0 0-1.5 1.5v6a1.5 1.5 0 0 0 1.5 1.5h11"
         "a1.5 1.5 0 0 0 1.5-1.5v-6a1.5 1.5 0 0 0-1.5-1.5h-1.5"
         "M9.5 1.5v9M7 8l2.5 2.5 2.5-2.5M9.5 13.5v3M6 16.5h7")]),
    "panel-save": (20, "panelsaveup", "panelsavedown", [
        ("line", "M4 2.5h9.5l3 3v9.5a1.5 1.5 0 0 1-1.5 1.5h-11a1.5 1.5 0 0 1-1.5-1.5v-11"
         "a1.5 1.5 0 0 1 1.5-1.5zM5.5 16.5v-6h8v6M6.5 2.5v4h5v-4")]),
    "panel-options": (20, "paneloptionsup", "paneloptionsdown", [
        ("line", "M2.5 5.5h7M14.5 5.5h2M2.5 13.5h2M9.5 13.5h7"
         + circle(12, 5.5, 2.5) + circle(7, 13.5, 2.5))]),
    "panel-help": (20, "panelhelpup", "panelhelpdown", [
        ("line", circle(9.5, 9.5, 7)
         + "M7.3 7.5a2.2 2.2 0 1 1 3.5 1.8c-.8.6-1.3.9-1.3 1.7"),
        ("fill", circle(9.5, 13.2, 0.95))]),
    "panel-exit": (20, "panelexitup", "panelexitdown", [
        ("line", "M9.5 2.5h-5.5a1.5 1.5 0 0 0-1.5 1.5v11a1.5 1.5 0 0 0 1.5 1.5h5.5"
         "M7.5 9.5h9M13 6l3.5 3.5-3.5 3.5")]),

    # NoteStack window.
    "stack-add": (24, "addup", "adddown", [
        ("line", "M6 4h12a2 2 0 0 1 2 2v9l-5 5h-9a2 2 0 0 1-2-2v-12a2 2 0 0 1 2-2z"
         "M20 15h-3.5a1.5 1.5 0 0 0-1.5 1.5v3.5M11 8v6M8 11h6")]),
    "stack-delete": (24, "deleteup", "deletedown", [
        ("line", "M4 6h16M9 6v-1.5a1.5 1.5 0 0 1 1.5-1.5h3a1.5 1.5 0 0 1 1.5 1.5v1.5"
         "M6 6v13a2 2 0 0 0 2 2h8a2 2 0 0 0 2-2v-13M10 11v5M14 11v5")]),
    "stack-desktop": (24, "desktopup", "desktopdown", [
        ("line", "M7 5h-2a2 2 0 0 0-2 2v7a2 2 0 0 0 2 2h14a2 2 0 0 0 2-2v-7a2 2 0 0 0-2-2h-2"
         "M12 2v9M9 8.5l3 3 3-3M12 16v5M8 21h8")]),
    "stack-hide": (24, "hideup", "hidedown", [
        ("line", "M2.5 12c2-4.2 5.4-6.5 9.5-6.5s7.5 2.3 9.5 6.5c-2 4.2-5.4 6.5-9.5 6.5s-7.5-2.3-9.5-6.5z"
         + circle(12, 12, 3)),
        ("gap", "M5.2 3.2l15.6 15.6"),
        ("line", "M4 4l16 16")]),
    "stack-email": (24, "emailup", "emaildown", [
        ("line", box(3, 5, 18, 14, 2) + "M4 6.5l8 6.5 8-6.5")]),
    "stack-send": (24, "sendup", "senddown", [
        ("line", "M20.5 3.5L3.5 10l7.2 3.3 3.3 7.2zM20.5 3.5l-9.8 9.8")]),
    "stack-settings": (24, "settingsup", "settingsdown", [
        ("line", "M3 7h9M18 7h3M3 17h3M12 17h9" + circle(15, 7, 3) + circle(9, 17, 3))]),
    "stack-password": (24, "passwordup", "passworddown", [
        ("line", box(5, 11, 14, 10, 2) + "M8 11V7a4 4 0 0 1 8 0v4"),
        ("fill", circle(12, 16, 1.5))]),
    "stack-alarm": (24, "alarmup", "alarmdown", [
        ("line", circle(12, 13, 7) + "M12 9v4h3M3.5 6.5l3-3M20.5 6.5l-3-3")]),
    "stack-help": (24, "helpup", "helpdown", [
        ("line", circle(12, 12, 9) + "M9 9.5a3 3 0 1 1 4.8 2.4c-1.1.8-1.8 1.2-1.8 2.1"),
        ("fill", circle(12, 17, 1.3))]),
}

# The hands: bones as (x1, y1, x2, y2, width) and the palm, on a 32 grid.
HANDS = {
    "handbefore": ([(11.5, 18, 11.5, 8.5, 3), (15.5, 17, 15.5, 6.5, 3), (19.5, 17, 19.5, 7.5, 3),
                    (23.5, 18, 23.5, 10.5, 3), (12, 22, 7, 17, 3.2)],
                   "M10.2 16.5h14.6v4c0 4-2.4 6.8-6.2 6.8h-2.6c-2.2 0-3.8-1-5.1-2.8l-2.3-3.3 1.6-1.2z"),
    "handafter": ([(11.5, 18, 11.5, 13.5, 3), (15.5, 17, 15.5, 12.5, 3), (19.5, 17, 19.5, 12.5, 3),
                   (23.5, 18, 23.5, 14.5, 3), (11.5, 22, 8.6, 18.6, 3)],
                  "M10.2 17.5h14.6v3c0 4-2.4 6.8-6.2 6.8h-2.6c-2.2 0-3.8-1-5.1-2.8l-2.3-3.1 1.6-1.4z"),
}


def line_picture(grid, strokes, down):
    width, side, radius = GRIDS[grid]
    paper, ink = ("#000", "#fff") if down else ("#fff", "#000")
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{grid}" height="{grid}" '
           f'viewBox="0 0 {grid} {grid}">', HEAD.rstrip()]
    if down:
        out.append(f'<rect width="{side}" height="{side}" rx="{radius}" fill="{paper}"/>')
    out.append('<g fill="none" stroke-linecap="round" stroke-linejoin="round">')
    for kind, path in strokes:
        if kind == "fill":
            out.append(f'<path fill="{ink}" d="{path}"/>')
        else:
            colour, wide = (ink, width) if kind == "line" else (paper, 2 * width)
            out.append(f'<path stroke="{colour}" stroke-width="{wide:g}" d="{path}"/>')
    out += ["</g>", "</svg>", ""]
    return "\n".join(out)


def hand_picture(bones, palm):
    out = ['<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32">',
           HEAD.rstrip(), '<g stroke-linecap="round" stroke-linejoin="round">']
    for colour, extra in (("#000", 2.6), ("#fff", 0)):
        for x1, y1, x2, y2, width in bones:
            out.append(f'<path stroke="{colour}" stroke-width="{width + extra:g}" '
                       f'd="M{x1} {y1}L{x2} {y2}"/>')
        out.append(f'<path fill="{colour}" stroke="{colour}" stroke-width="{extra or 0.4:g}" '
                   f'd="{palm}"/>')
    out += ["</g>", "</svg>", ""]
    return "\n".join(out)


def render(svg, size, background=None):
    command = ["rsvg-convert", "--format=png", f"--width={size}", f"--height={size}"]
    if background:
        command.append(f"--background-color={background}")
    png = subprocess.run(command, input=svg.encode(), stdout=subprocess.PIPE, check=True).stdout
    return Image.open(io.BytesIO(png)).convert("RGBA")


def at(name, scale):
    stem, suffix = name.rsplit(".", 1)
    return HERE / (f"{stem}.{suffix}" if scale == 1 else f"{stem}@{scale}x.{suffix}")


def write_gif(path, picture):
    picture.convert("L").save(path, "GIF", interlace=0, optimize=False)


def png_bytes(picture):
    out = io.BytesIO()
    picture.save(out, "PNG", optimize=True)
    return out.getvalue()


def bitmap_bytes(picture):
    width, height = picture.size
    upside_down = picture.transpose(Image.Transpose.FLIP_TOP_BOTTOM)
    colours = upside_down.tobytes("raw", "BGRA")
    stride = (width + 31) // 32 * 4
    mask = bytearray(stride * height)
    for index, alpha in enumerate(upside_down.getchannel("A").tobytes()):
        if alpha == 0:
            y, x = divmod(index, width)
            mask[y * stride + x // 8] |= 0x80 >> x % 8
    header = struct.pack("<IiiHHIIiiII", 40, width, 2 * height, 1, 32, 0,
                         len(colours) + len(mask), 0, 0, 0, 0)
    return header + colours + bytes(mask)


def write_ico(path, pictures):
    directory, data = b"", b""
    start = 6 + 16 * len(pictures)
    for picture in pictures:
        size = picture.width
        image = png_bytes(picture) if size >= 256 else bitmap_bytes(picture)
        directory += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32,
                                 len(image), start + len(data))
        data += image
    path.write_bytes(struct.pack("<HHH", 0, 1, len(pictures)) + directory + data)


def main():
    for name, (grid, up, down, strokes) in SHAPES.items():
        (SOURCE / f"{name}.svg").write_text(line_picture(grid, strokes, up is None))
        for file, pressed in ((up, False), (down, True)):
            for scale in SCALES if file else ():
                write_gif(at(f"{file}.gif", scale),
                          render(line_picture(grid, strokes, pressed), grid * scale, "white"))

    for name, (bones, palm) in HANDS.items():
        svg = hand_picture(bones, palm)
        (SOURCE / f"{name}.svg").write_text(svg)
        for scale in (1, 2):
            write_ico(at(f"{name}.ico", scale), [render(svg, 32 * scale)])

    large = (SOURCE / "quillets.svg").read_text()
    small = {size: (SOURCE / f"quillets-{size}.svg").read_text() for size in (16, 24)}
    icons = {size: render(small.get(size, large), size) for size in (16, 24, 32, 48, 64, 128, 256)}
    for size, icon in icons.items():
        file = "quillets.png" if size == 256 else f"quillets-{size}.png"
        (HERE / file).write_bytes(png_bytes(icon))
    for scale in SCALES:
        at("logo.png", scale).write_bytes(png_bytes(render(large, 48 * scale)))
    write_ico(HERE / "quillets.ico", [icons[size] for size in (16, 32, 48, 256)])


if __name__ == "__main__":
    main()
