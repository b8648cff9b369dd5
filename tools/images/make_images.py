#!/usr/bin/env python3
"""Draws the program's images as SVG and renders them to PNG.

Usage: python3 tools/images/make_images.py [--svg-only]

The SVG sources go to tools/images/svg/, the PNGs (and the .ico) to resources/image/.
Rendering needs rsvg-convert (Debian package librsvg2-bin); the build itself only uses the
committed PNGs. Flat style: brand teal rgb(35,184,198), brand blue rgb(85,126,191).
"""

import os
import struct
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.normpath(os.path.join(HERE, "..", ".."))
SVG_DIR = os.path.join(HERE, "svg")
OUT_DIR = os.path.join(ROOT, "resources", "image")

TEAL = "#23B8C6"
BLUE = "#557EBF"
DARK = "#2F4A6D"
GREY = "#9AA7B4"
LIGHT = "#EEF5F7"
WHITE = "#FFFFFF"
GREEN = "#3CB371"
ORANGE = "#F5A623"
RED = "#D9534F"
FONT = "DejaVu Sans"


def svg(width, height, body, view=None):
    view = view or "0 0 %d %d" % (width, height)
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" viewBox="%s">\n'
            '%s\n</svg>\n' % (width, height, view, body))


def gradient(name, c1, c2, vertical=False):
    x2, y2 = ("0", "1") if vertical else ("1", "1")
    return ('<defs><linearGradient id="%s" x1="0" y1="0" x2="%s" y2="%s">'
            '<stop offset="0" stop-color="%s"/><stop offset="1" stop-color="%s"/>'
            '</linearGradient></defs>' % (name, x2, y2, c1, c2))


def stroke(colour, width=2.5):
    return ('fill="none" stroke="%s" stroke-width="%s" stroke-linecap="round" '
            'stroke-linejoin="round"' % (colour, width))


def chip_mark(x, y, size, body, pins):
    """A square chip with four pins per side, the program's mark."""
    parts = []
    pin_len = size * 0.14
    pin_w = size * 0.07
    inner = size - 2 * pin_len
    step = inner / 5.0
    for i in range(1, 5):
        off = pin_len + i * step - pin_w / 2
        parts.append('<rect x="%.2f" y="%.2f" width="%.2f" height="%.2f" rx="%.2f" fill="%s"/>'
                     % (x + off, y, pin_w, pin_len + 1, pin_w / 3, pins))
        parts.append('<rect x="%.2f" y="%.2f" width="%.2f" height="%.2f" rx="%.2f" fill="%s"/>'
                     % (x + off, y + size - pin_len - 1, pin_w, pin_len + 1, pin_w / 3, pins))
        parts.append('<rect x="%.2f" y="%.2f" width="%.2f" height="%.2f" rx="%.2f" fill="%s"/>'
                     % (x, y + off, pin_len + 1, pin_w, pin_w / 3, pins))
        parts.append('<rect x="%.2f" y="%.2f" width="%.2f" height="%.2f" rx="%.2f" fill="%s"/>'
                     % (x + size - pin_len - 1, y + off, pin_len + 1, pin_w, pin_w / 3, pins))
    parts.append('<rect x="%.2f" y="%.2f" width="%.2f" height="%.2f" rx="%.2f" fill="%s"/>'
                 % (x + pin_len, y + pin_len, inner, inner, size * 0.06, body))
    parts.append('<circle cx="%.2f" cy="%.2f" r="%.2f" fill="%s"/>'
                 % (x + pin_len + inner * 0.18, y + pin_len + inner * 0.18, inner * 0.06, pins))
    return "\n".join(parts)


# --- Application icon and logos -------------------------------------------------------------

def app_icon():
    s = 256
    body = gradient("g", TEAL, BLUE)
    body += '<rect x="8" y="8" width="240" height="240" rx="48" fill="url(#g)"/>'
    body += chip_mark(48, 48, 160, WHITE, WHITE)
    body += '<rect x="92" y="92" width="72" height="72" rx="8" fill="url(#g)"/>'
    # A pin being assigned: a spark leaving the chip.
    body += '<path d="M128 104 L140 128 L128 128 L134 152 L116 124 L128 124 Z" fill="%s"/>' % WHITE
    return svg(s, s, body)


def wordmark(width, height, scale, tagline):
    body = gradient("g", TEAL, BLUE)
    mark = height * 0.8
    top = (height - mark) / 2
    body += '<rect x="%.1f" y="%.1f" width="%.1f" height="%.1f" rx="%.1f" fill="url(#g)"/>' % (
        top, top, mark, mark, mark * 0.2)
    body += chip_mark(top + mark * 0.15, top + mark * 0.15, mark * 0.7, WHITE, WHITE)
    tx = top + mark + height * 0.25
    body += ('<text x="%.1f" y="%.1f" font-family="%s" font-weight="bold" font-size="%.1f" '
             'fill="%s" letter-spacing="%.1f">VELMORA</text>' % (
                 tx, height * (0.62 if tagline else 0.68), FONT, 24 * scale, BLUE, 2 * scale))
    if tagline:
        body += ('<text x="%.1f" y="%.1f" font-family="%s" font-size="%.1f" fill="%s">'
                 'Microcontroller tools</text>' % (tx + 2, height * 0.86, FONT, 10 * scale, TEAL))
    return svg(width, height, body)


def cover():
    w, h = 520, 300
    body = gradient("g", TEAL, BLUE)
    body += '<rect width="%d" height="%d" fill="url(#g)"/>' % (w, h)
    # Faint circuit traces.
    for i in range(4):
        y = 28 + i * 40
        body += ('<path d="M0 %d H%d l20 20 H%d" %s opacity="0.18"/>'
                 % (y, 120 + i * 20, 300 + i * 25, stroke(WHITE, 2)))
        body += '<circle cx="%d" cy="%d" r="4" fill="%s" opacity="0.3"/>' % (
            300 + i * 25, y + 20, WHITE)
    cx, cy, size = 372, 34, 128
    body += chip_mark(cx, cy, size, WHITE, WHITE)
    inner = size * 0.72
    core = inner * 0.74
    off = size * 0.14 + (inner - core) / 2
    body += '<rect x="%.1f" y="%.1f" width="%.1f" height="%.1f" rx="6" fill="%s"/>' % (
        cx + off, cy + off, core, core, BLUE)
    body += ('<text x="%.1f" y="%.1f" text-anchor="middle" font-family="%s" font-weight="bold" '
             'font-size="18" fill="%s">MQ48</text>' % (cx + size / 2, cy + size / 2 + 6, FONT,
                                                       WHITE))
    body += ('<text x="36" y="230" font-family="%s" font-weight="bold" font-size="34" '
             'fill="%s">MQ48 Pin Forge</text>' % (FONT, WHITE))
    body += ('<text x="38" y="262" font-family="%s" font-size="15" fill="%s" opacity="0.9">'
             'Pins, peripherals, clocks and code</text>' % (FONT, WHITE))
    return svg(w, h, body)


def page_footer():
    """The band at the foot of every page of the PDF report."""
    w, h = 1200, 20
    body = gradient("g", TEAL, BLUE)
    body += '<rect width="%d" height="%d" rx="3" fill="url(#g)"/>' % (w, h)
    body += ('<text x="%d" y="14.5" text-anchor="end" font-family="%s" font-weight="bold" '
             'font-size="11" fill="%s" letter-spacing="1">VELMORA TECHNOLOGY</text>'
             % (w - 12, FONT, WHITE))
    return svg(w, h, body)


# --- Arrows ---------------------------------------------------------------------------------

def chevron(direction, colour, width=2.5, size=16):
    if direction == "down":
        d = "M4 6 L8 10 L12 6"
    else:
        d = "M6 4 L10 8 L6 12"
    return svg(size, size, '<path d="%s" %s/>' % (d, stroke(colour, width)), "0 0 16 16")


def triangle(direction, colour):
    if direction == "down":
        d = "M3 5 H13 L8 11 Z"
    else:
        d = "M5 3 V13 L11 8 Z"
    return svg(16, 16, '<path d="%s" fill="%s" stroke="%s" stroke-width="1" '
               'stroke-linejoin="round"/>' % (d, colour, colour))


def slider(direction):
    body = '<circle cx="8" cy="8" r="7" fill="%s"/>' % TEAL
    if direction == "down":
        d = "M5 6.5 L8 9.5 L11 6.5"
    else:
        d = "M6.5 5 L9.5 8 L6.5 11"
    body += '<path d="%s" %s/>' % (d, stroke(WHITE, 1.8))
    return svg(16, 16, body)


# --- Language icons -------------------------------------------------------------------------

def language_icon(kind, active):
    fg = WHITE if active else BLUE
    body = '<rect x="2" y="4" width="28" height="24" rx="5" fill="%s" stroke="%s" ' \
           'stroke-width="2"/>' % (BLUE if active else WHITE, BLUE)
    if kind == "EN":
        body += ('<text x="16" y="21.5" text-anchor="middle" font-family="%s" font-weight="bold" '
                 'font-size="12" fill="%s">EN</text>' % (FONT, fg))
    else:
        # The character for "middle": a box crossed by one vertical stroke.
        body += '<rect x="9.5" y="11" width="13" height="8" rx="1" %s/>' % stroke(fg, 2.2)
        body += '<path d="M16 7.5 V24.5" %s/>' % stroke(fg, 2.4)
    return svg(32, 32, body)


# --- Tool bar icons (32 x 32) ---------------------------------------------------------------

def generate_code():
    body = '<rect x="3" y="3" width="26" height="26" rx="5" fill="%s"/>' % BLUE
    body += '<path d="M12 10 L6.5 16 L12 22" %s/>' % stroke(WHITE, 2.6)
    body += '<path d="M20 10 L25.5 16 L20 22" %s/>' % stroke(WHITE, 2.6)
    body += '<path d="M17.5 8.5 L14.5 23.5" %s/>' % stroke(TEAL, 2.6)
    return svg(32, 32, body)


def download():
    body = '<path d="M16 4 V19" %s/>' % stroke(BLUE, 3)
    body += '<path d="M9.5 13 L16 19.5 L22.5 13" %s/>' % stroke(BLUE, 3)
    body += '<path d="M5 20 V26 H27 V20" %s/>' % stroke(TEAL, 3)
    return svg(32, 32, body)


def home():
    body = '<path d="M4 15.5 L16 5 L28 15.5" %s/>' % stroke(BLUE, 3)
    body += '<path d="M8 13 V27 H24 V13" %s/>' % stroke(BLUE, 3)
    body += '<rect x="13.5" y="18" width="5" height="9" rx="1" fill="%s"/>' % TEAL
    return svg(32, 32, body)


def magnifier(inner):
    body = '<circle cx="13.5" cy="13.5" r="8.5" %s/>' % stroke(BLUE, 3)
    body += '<path d="M20 20 L27.5 27.5" %s/>' % stroke(BLUE, 4)
    if inner == "plus":
        body += '<path d="M9.5 13.5 H17.5 M13.5 9.5 V17.5" %s/>' % stroke(TEAL, 2.6)
    elif inner == "minus":
        body += '<path d="M9.5 13.5 H17.5" %s/>' % stroke(TEAL, 2.6)
    elif inner == "reset":
        body += '<rect x="9.8" y="9.8" width="7.4" height="7.4" rx="1" %s/>' % stroke(TEAL, 2.2)
    return svg(32, 32, body)


def circular_arrow(clockwise, colour=BLUE):
    # An arc of three quarters with an arrow head at its end.
    if clockwise:
        arc = "M16 6 A10 10 0 1 1 6.3 18.6"
        head = "M16 2 L20.5 6 L16 10"
    else:
        arc = "M16 6 A10 10 0 1 0 25.7 18.6"
        head = "M16 2 L11.5 6 L16 10"
    body = '<path d="%s" %s/>' % (arc, stroke(colour, 3))
    body += '<path d="%s" %s/>' % (head, stroke(colour, 3))
    body += '<circle cx="16" cy="16" r="2.5" fill="%s"/>' % TEAL
    return svg(32, 32, body)


def return_icon():
    body = '<path d="M9 11 H21 A6.5 6.5 0 0 1 21 24 H10" %s/>' % stroke(BLUE, 3)
    body += '<path d="M13.5 6 L8 11 L13.5 16" %s/>' % stroke(TEAL, 3)
    return svg(32, 32, body)


def add_p():
    body = '<circle cx="8" cy="8" r="7" fill="%s"/>' % TEAL
    body += '<path d="M8 4.2 V11.8 M4.2 8 H11.8" %s/>' % stroke(WHITE, 2)
    return svg(16, 16, body)


# --- Status icons ---------------------------------------------------------------------------

def danger():
    body = '<path d="M16 3.5 L29.5 27.5 H2.5 Z" fill="%s" stroke="%s" stroke-width="2.5" ' \
           'stroke-linejoin="round"/>' % (ORANGE, ORANGE)
    body += '<path d="M16 11 V19.5" %s/>' % stroke(WHITE, 3.2)
    body += '<circle cx="16" cy="23.8" r="1.9" fill="%s"/>' % WHITE
    return svg(32, 32, body)


def checked():
    body = '<rect x="1.5" y="1.5" width="13" height="13" rx="3" fill="%s"/>' % TEAL
    body += '<path d="M4.5 8.2 L7 10.7 L11.6 5.4" %s/>' % stroke(WHITE, 2)
    return svg(16, 16, body)


def stone(fill, rim, shine):
    body = '<circle cx="8" cy="8" r="6.2" fill="%s" stroke="%s" stroke-width="1.3"/>' % (
        fill, rim)
    body += '<ellipse cx="6.3" cy="5.8" rx="2.2" ry="1.5" fill="%s" opacity="0.75"/>' % shine
    return svg(16, 16, body)


# --- Timing diagrams ------------------------------------------------------------------------

def text(x, y, s, size=13, colour=DARK, anchor="middle", weight="normal"):
    return ('<text x="%s" y="%s" text-anchor="%s" font-family="%s" font-size="%s" '
            'font-weight="%s" fill="%s">%s</text>' % (x, y, anchor, FONT, size, weight, colour, s))


def dimension(x1, x2, y, colour=GREY):
    """A horizontal measure line with arrow heads at both ends."""
    return ('<path d="M%s %s H%s" %s/>'
            '<path d="M%s %s l6 -4 v8 Z M%s %s l-6 -4 v8 Z" fill="%s"/>'
            % (x1, y, x2, stroke(colour, 1.5), x1, y, x2, y, colour))


def can_diagram():
    w, h = 620, 220
    body = '<rect width="%d" height="%d" fill="%s"/>' % (w, h, WHITE)
    body += text(310, 26, "CAN bit time", 15, DARK, weight="bold")
    # Segments of one nominal bit: Sync | BS1 | BS2.
    x0, x1, x2, x3 = 40, 120, 420, 580
    y, hh = 60, 50
    body += '<rect x="%d" y="%d" width="%d" height="%d" fill="%s"/>' % (x0, y, x1 - x0, hh, BLUE)
    body += '<rect x="%d" y="%d" width="%d" height="%d" fill="%s"/>' % (x1, y, x2 - x1, hh, TEAL)
    body += '<rect x="%d" y="%d" width="%d" height="%d" fill="#8FD9E0"/>' % (x2, y, x3 - x2, hh)
    body += '<rect x="%d" y="%d" width="%d" height="%d" %s/>' % (
        x0, y, x3 - x0, hh, stroke(DARK, 1.5))
    body += text((x0 + x1) / 2, y + 31, "SYNC", 14, WHITE, weight="bold")
    body += text((x1 + x2) / 2, y + 31, "BS1", 14, WHITE, weight="bold")
    body += text((x2 + x3) / 2, y + 31, "BS2", 14, DARK, weight="bold")
    # Sample point between BS1 and BS2.
    body += '<path d="M%d %d V%d" %s/>' % (x2, y - 8, y + hh + 30, stroke(RED, 2))
    body += '<path d="M%d %d l-6 -10 h12 Z" fill="%s"/>' % (x2, y - 2, RED)
    body += text(x2, y + hh + 48, "Sample point (%)", 12, RED)
    # Measures; the value labels sit beneath each segment.
    body += dimension(x0, x1, y + hh + 16)
    body += dimension(x1, x2, y + hh + 16)
    body += dimension(x2, x3, y + hh + 16)
    body += dimension(x0, x3, 196, BLUE)
    body += text(310, 214, "1 bit = (SYNC + BS1 + BS2) time quanta", 12, BLUE)
    return svg(w, h, body)


def i2c_diagram():
    w, h = 620, 260
    body = '<rect width="%d" height="%d" fill="%s"/>' % (w, h, WHITE)
    body += text(310, 24, "I2C bus timing", 15, DARK, weight="bold")
    lo_scl, hi_scl = 140, 90
    lo_sda, hi_sda = 210, 160
    body += text(28, (lo_scl + hi_scl) / 2 + 5, "SCL", 13, DARK, weight="bold")
    body += text(28, (lo_sda + hi_sda) / 2 + 5, "SDA", 13, DARK, weight="bold")
    # SCL: low, rise (tr), high, fall (tf), low, rise, high.
    scl = ("M55 %d H150 L180 %d H300 L320 %d H420 L450 %d H570 L590 %d H600"
           % (lo_scl, hi_scl, lo_scl, hi_scl, lo_scl))
    body += '<path d="%s" %s/>' % (scl, stroke(BLUE, 2.5))
    # SDA changes while SCL is low, then is set up before the rise.
    sda = ("M55 %d H90 L100 %d H340 L350 %d H600" % (hi_sda, lo_sda, hi_sda))
    body += '<path d="%s" %s/>' % (sda, stroke(TEAL, 2.5))
    body += '<path d="M55 %d H90 L100 %d H340 L350 %d H600" %s/>' % (
        lo_sda, hi_sda, lo_sda, stroke(TEAL, 2.5))
    guide = stroke(GREY, 1)
    for x in (150, 180, 300, 320, 350, 420):
        body += '<path d="M%d 70 V230" %s stroke-dasharray="3 3"/>' % (x, guide)
    body += dimension(150, 180, 62, RED)
    body += text(165, 52, "tr", 12, RED)
    body += dimension(300, 320, 62, RED)
    body += text(310, 52, "tf", 12, RED)
    body += dimension(350, 420, 228, RED)
    body += text(385, 250, "tSU", 12, RED)
    body += dimension(150, 420, 40, BLUE)
    body += text(470, 44, "period = 1 / fSCL", 12, BLUE, anchor="start")
    return svg(w, h, body)


def tmr_diagram(direction):
    w, h = 620, 260
    body = '<rect width="%d" height="%d" fill="%s"/>' % (w, h, WHITE)
    titles = {1: "Counting up", 2: "Counting down", 3: "Counting up and down"}
    body += text(310, 24, "Timer counter: " + titles[direction], 15, DARK, weight="bold")
    base, top = 190, 70
    xs = 70
    body += '<path d="M%d 50 V%d H600" %s/>' % (xs, base, stroke(DARK, 1.5))
    body += '<path d="M%d 46 l-4 8 h8 Z M604 %d l-8 -4 v8 Z" fill="%s"/>' % (xs, base, DARK)
    body += text(xs - 8, top + 4, "PR", 12, BLUE, anchor="end", weight="bold")
    body += text(xs - 8, base + 4, "0", 12, BLUE, anchor="end", weight="bold")
    body += '<path d="M%d %d H590" %s stroke-dasharray="4 4"/>' % (xs, top, stroke(GREY, 1))
    period = 160
    if direction == 1:
        d = "M%d %d" % (xs, base)
        for i in range(3):
            x = xs + i * period
            d += " L%d %d V%d" % (x + period, top, base)
    elif direction == 2:
        d = "M%d %d" % (xs, top)
        for i in range(3):
            x = xs + i * period
            d += " L%d %d V%d" % (x + period, base, top)
    else:
        d = "M%d %d" % (xs, base)
        for i in range(3):
            x = xs + i * period
            d += " L%d %d L%d %d" % (x + period / 2, top, x + period, base)
    body += '<path d="%s" %s/>' % (d, stroke(TEAL, 3))
    # One period of the output, and the clock feeding the prescaler.
    body += dimension(xs, xs + period, 214, BLUE)
    body += text(xs + period / 2, 236, "1 / output frequency", 12, BLUE)
    body += text(600, 236, "clock / (DIV + 1)", 12, GREY, anchor="end")
    return svg(w, h, body)


# --- Catalogue of every image ---------------------------------------------------------------

IMAGES = {
    # name: (svg text, output width, output height)
    "VelmoraIcon": (app_icon(), 256, 256),
    "Logo_1": (wordmark(200, 48, 1.0, False), 200, 48),
    "Velmora_log": (wordmark(400, 96, 1.6, True), 400, 96),
    "PPT cover": (cover(), 520, 300),
    "velmora": (wordmark(200, 48, 1.0, True), 200, 48),
    "pagefooter": (page_footer(), 2400, 40),
    "icon_down_white": (chevron("down", WHITE), 16, 16),
    "icon_right_white": (chevron("right", WHITE), 16, 16),
    "down-arrow": (triangle("down", BLUE), 16, 16),
    "right-arrow": (triangle("right", BLUE), 16, 16),
    "btn_down_slider_hover": (slider("down"), 16, 16),
    "btn_right_slider_hover": (slider("right"), 16, 16),
    "icon_EN01": (language_icon("EN", False), 32, 32),
    "icon_EN02": (language_icon("EN", True), 32, 32),
    "icon_ZH01": (language_icon("ZH", False), 32, 32),
    "icon_ZH02": (language_icon("ZH", True), 32, 32),
    "generate_code": (generate_code(), 32, 32),
    "download": (download(), 32, 32),
    "icon_home": (home(), 32, 32),
    "icon_zoomin": (magnifier("plus"), 32, 32),
    "icon_zoomout": (magnifier("minus"), 32, 32),
    "icon_zoomreset": (magnifier("reset"), 32, 32),
    "icon-search": (magnifier(None), 32, 32),
    "icon_return": (return_icon(), 32, 32),
    "rotate1": (circular_arrow(True), 32, 32),
    "rotate2": (circular_arrow(False), 32, 32),
    "add_P": (add_p(), 16, 16),
    "danger32": (danger(), 32, 32),
    "checked": (checked(), 16, 16),
    "greenStone": (stone(GREEN, "#2E8B57", WHITE), 16, 16),
    "background-light": (stone("#DDE4EA", GREY, WHITE), 16, 16),
    "CAN": (can_diagram(), 620, 220),
    "i2c": (i2c_diagram(), 620, 260),
    "TMR1": (tmr_diagram(1), 620, 260),
    "TMR2": (tmr_diagram(2), 620, 260),
    "TMR3": (tmr_diagram(3), 620, 260),
}


def write_ico(path, pngs):
    """An .ico whose entries are PNG streams (supported by every current reader)."""
    header = struct.pack("<HHH", 0, 1, len(pngs))
    offset = 6 + 16 * len(pngs)
    entries, data = b"", b""
    for size, blob in pngs:
        dim = 0 if size >= 256 else size
        entries += struct.pack("<BBBBHHII", dim, dim, 0, 0, 1, 32, len(blob), offset + len(data))
        data += blob
    with open(path, "wb") as f:
        f.write(header + entries + data)


def render(svg_path, png_path, width, height):
    subprocess.run(["rsvg-convert", "-w", str(width), "-h", str(height), "-o", png_path,
                    svg_path], check=True)


def main():
    os.makedirs(SVG_DIR, exist_ok=True)
    os.makedirs(OUT_DIR, exist_ok=True)
    for name, (source, _, _) in IMAGES.items():
        with open(os.path.join(SVG_DIR, name + ".svg"), "w", encoding="utf-8") as f:
            f.write(source)
    if "--svg-only" in sys.argv:
        return
    for name, (_, width, height) in IMAGES.items():
        render(os.path.join(SVG_DIR, name + ".svg"), os.path.join(OUT_DIR, name + ".png"),
               width, height)
    icon_svg = os.path.join(SVG_DIR, "VelmoraIcon.svg")
    pngs = []
    for size in (16, 32, 48, 256):
        tmp = os.path.join(SVG_DIR, "..", "icon-%d.tmp.png" % size)
        render(icon_svg, tmp, size, size)
        with open(tmp, "rb") as f:
            pngs.append((size, f.read()))
        os.remove(tmp)
    write_ico(os.path.join(OUT_DIR, "VelmoraIcon.ico"), pngs)


if __name__ == "__main__":
    main()
