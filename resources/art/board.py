"""Draws a keyboard as SVG from a table of rows. Lengths are in key units (1 = one letter key)."""

from dataclasses import dataclass
from functools import lru_cache

UNIT = 60  # pixels of one key unit at 100 %
GAP = 0.05  # on each side of a key
BEZEL = 0.42

# Rows of keys: LABEL, LABEL:WIDTH or LABEL:WIDTHxHEIGHT; "_" is a gap. A row of its own may lie further down (^).
MAIN_ROWS = (
    "` 1 2 3 4 5 6 7 8 9 0 - = BACK:2",
    "TAB:1.5 Q W E R T Y U I O P [ ] \\:1.5",
    "CAPS:1.75 A S D F G H J K L ; ' ENTER:2.25",
    "SHIFT:2.25 Z X C V B N M , . / SHIFT:1.75 UP",
    "CTRL:1.25 WIN:1.25 ALT:1.25 SPACE:6.25 ALT FN CTRL LEFT DOWN",
)
F_ROW = "ESC _:.25 F1 F2 F3 F4 _:.25 F5 F6 F7 F8 _:.25 F9 F10 F11 F12 _:.25 DEL"
RIGHT_COLUMN = ("HOME", "PGUP", "PGDN", "END", "RIGHT")
NUMBER_BLOCK = ("NUM / * -", "7 8 9 +:1x2", "4 5 6", "1 2 3 ENTER:1x2", "RIGHT 0 .")


def _joined(rows, gap, ends):
    return tuple(f"{row} _:{gap} {end}" for row, end in zip(rows, ends))


LAYOUTS = {
    "68": _joined(("ESC" + MAIN_ROWS[0][1:],) + MAIN_ROWS[1:], 0.15, RIGHT_COLUMN),
    "75": (F_ROW,) + _joined(MAIN_ROWS, 0.15, RIGHT_COLUMN),
    "75 knob": (F_ROW + " _:.15 KNOB",) + _joined(MAIN_ROWS, 0.15, RIGHT_COLUMN),
    "98": (F_ROW + " _:.2 HOME END PGUP PGDN",) + _joined(MAIN_ROWS, 0.2, NUMBER_BLOCK),
    "61": (
        "ESC" + MAIN_ROWS[0][1:],
        *MAIN_ROWS[1:3],
        "SHIFT:2.25 Z X C V B N M , . / SHIFT:2.75",
        "CTRL:1.25 WIN:1.25 ALT:1.25 SPACE:6.25 ALT:1.25 FN:1.25 MENU:1.25 CTRL:1.25",
    ),
}

# Letters as strokes on a grid of 4 by 6, so that no font is needed.
STROKES = {
    "A": "M0 6 2 0 4 6M.8 4h2.4", "B": "M0 3h2.2a1.5 1.5 0 0 0 0-3H0v6h2.4a1.5 1.5 0 0 0 0-3",
    "C": "M4 1.2A2.2 3 0 1 0 4 4.8", "D": "M0 0h1.4a2.6 3 0 0 1 0 6H0z", "E": "M3.6 0H0v6h3.6M0 3h3",
    "F": "M3.6 0H0v6M0 3h3", "G": "M3.8 1.2A2.2 3 0 1 0 4 3.4H2.4", "H": "M0 0v6M4 0v6M0 3h4", "I": "M2 0v6",
    "J": "M3.4 0v4.2a1.7 1.8 0 0 1-3.2.6", "K": "M0 0v6M3.8 0 0 3.6M1.4 2.4 4 6", "L": "M0 0v6h3.6",
    "M": "M0 6V0l2 3.6L4 0v6", "N": "M0 6V0l4 6V0", "O": "M2 0a2 3 0 0 1 0 6 2 3 0 0 1 0-6",
    "P": "M0 6V0h2.2a1.7 1.7 0 0 1 0 3.4H0", "Q": "M2 0a2 3 0 0 1 0 6 2 3 0 0 1 0-6M2.6 4.4 4 6.2",
    "R": "M0 6V0h2.2a1.6 1.6 0 0 1 0 3.2H0M2 3.2 4 6",
    "S": "M3.7 1C3 -.4.3-.4.3 1.5c0 2 3.5 1.1 3.5 3.1 0 1.8-2.9 1.9-3.7.4", "T": "M0 0h4M2 0v6",
    "U": "M0 0v4a2 2 0 0 0 4 0V0", "V": "M0 0l2 6 2-6", "W": "M-.4 0 .9 6 2 1.5 3.1 6 4.4 0",
    "X": "M0 0l4 6M4 0 0 6", "Y": "M0 0l2 3 2-3M2 3v3", "Z": "M0 0h4L0 6h4",
    "0": "M2 0a1.7 3 0 0 1 0 6 1.7 3 0 0 1 0-6", "1": "M.8 1.2 2.2 0v6",
    "2": "M.3 1.5C.6-.6 3.7-.5 3.7 1.6 3.7 3 1.4 4 .2 6h3.7",
    "3": "M.3.2h3.3L1.8 2.5c3 0 2.6 3.5.1 3.5-1 0-1.5-.5-1.8-1.1", "4": "M3 6V0L0 4.2h4",
    "5": "M3.6 0H.8L.5 2.7c3.2-.9 4.3 3.2 1.3 3.3-.8 0-1.4-.4-1.7-1",
    "6": "M3 0 .6 3.2M2 2.4a1.8 1.8 0 1 1 0 3.6 1.8 1.8 0 0 1 0-3.6", "7": "M.2 0h3.6L1.4 6",
    "8": "M2 0a1.4 1.4 0 0 1 0 2.8 1.4 1.4 0 0 1 0-2.8M2 2.8a1.6 1.6 0 0 1 0 3.2 1.6 1.6 0 0 1 0-3.2",
    "9": "M1 6l2.4-3.2M2 0a1.8 1.8 0 1 1 0 3.6A1.8 1.8 0 0 1 2 0", "`": "M1.5 0l1 1.6", "-": "M.6 3h2.8",
    "=": "M.4 2h3.2M.4 4h3.2", "[": "M2.6 0H1.2v6h1.4", "]": "M1.4 0h1.4v6H1.4", "\\": "M.6 0l2.8 6",
    ";": "M2 2v.01M2 4.5l-.6 1.5", "'": "M2 0v1.6", ",": "M2 5l-.6 1.5", ".": "M2 5.5v.01", "/": "M3.4 0 .6 6",
    "*": "M2 1v4M.4 2l3.2 2M3.6 2 .4 4", "+": "M2 1v4M0 3h4",
}
SIGNS = {
    "UP": "M2 .8v4.8M0 2.8l2-2 2 2", "DOWN": "M2 .4v4.8M0 3.2l2 2 2-2", "LEFT": "M4 3H0M2 1 0 3l2 2",
    "RIGHT": "M0 3h4M2 1l2 2-2 2", "BACK": "M5 3H-1M1 1l-2 2 2 2",
    "ENTER": "M4.5 0v3.5H-.5M1.3 1.7-.5 3.5l1.8 1.8", "WIN": "M0 1h4v4H0zM2 1v4M0 3h4",
    "MENU": "M0 1h4M0 3h4M0 5h4", "SPACE": "",
}


@dataclass(frozen=True)
class Colors:
    """What a keyboard wears; a pair is a gradient from top to bottom."""

    body: tuple = ("#453E52", "#211C2A")
    plate: str = "#17131D"
    letters: tuple = ("#FFFFFF", "#E9E5F4", "#BDB4D2", "#4A4359")  # face top, face bottom, side, legend
    others: tuple = ("#6A6278", "#544D62", "#332D3E", "#E6E1F2")
    accents: tuple = ("#8A50E0", "#6329B6", "#41197D", "#FFFFFF")
    glow: str = "#9B62F2"
    metal: tuple = ("#F4F1FA", "#8D859C")


@dataclass(frozen=True)
class Key:
    label: str
    x: float
    y: float
    width: float
    height: float


@lru_cache
def keys(layout):
    """The keys of a layout, in units, from (0, 0) on."""
    result, y = [], 0.0
    for number, row in enumerate(LAYOUTS[layout]):
        x = 0.0
        for token in row.split():
            label, _, size = token.partition(":")
            width, _, height = size.partition("x")
            width, height = float(width or 1), float(height or 1)
            if label != "_":
                result.append(Key(label, x, y, width, height))
            x += width
        y += 1.25 if number == 0 and row.startswith("ESC _") else 1
    return tuple(result)


def extent(layout):
    """Width and height of the body in pixels."""
    width = max(key.x + key.width for key in keys(layout))
    height = max(key.y + key.height for key in keys(layout))
    return (width + 2 * BEZEL) * UNIT, (height + 2 * BEZEL) * UNIT


def rect(x, y, width, height, radius, paint):
    return f'<rect x="{x:.1f}" y="{y:.1f}" width="{width:.1f}" height="{height:.1f}" rx="{radius:.1f}" {paint}/>'


def gradient(name, *colors, across=False):
    last = len(colors) - 1
    stops = "".join(f'<stop offset="{i / last:.2f}" stop-color="{color}"/>' for i, color in enumerate(colors))
    return (f'<linearGradient id="{name}" x1="0" y1="0" x2="{int(across)}" y2="{int(not across)}">'
            f'{stops}</linearGradient>')


def definitions(colors):
    faces = (("letters", colors.letters), ("others", colors.others), ("accents", colors.accents))
    return "".join([
        gradient("body", *colors.body),
        gradient("metal", *colors.metal),
        gradient("glow", colors.glow + "00", colors.glow, colors.glow, colors.glow + "00", across=True),
        *(gradient(name, face[0], face[1]) for name, face in faces),
        '<filter id="soft" color-interpolation-filters="sRGB" x="-20%" y="-50%" width="140%" height="200%">'
        '<feGaussianBlur stdDeviation="11"/></filter>',
    ])


def group(label):
    if label in ("ESC", "ENTER"):
        return "accents"
    return "letters" if len(label) == 1 or label == "SPACE" else "others"


def legend(label, x, y, width, color):
    """The label of a key in the upper left of its face, as strokes."""
    if label in SIGNS:
        strokes, scale = [(SIGNS[label], 0)], 2.6
    else:
        scale = 2.9 if len(label) == 1 else min(1.75, (width - 13) / (5.9 * len(label) - 1.9))
        strokes = [(STROKES[letter], i * 5.9) for i, letter in enumerate(label)]
    span = (5.9 * (len(strokes) - 1) + 4) * scale
    left = x + (width - span) / 2 if len(label) == 1 or label in SIGNS else x + 8
    top = y + (14 if len(label) == 1 else 12)
    paths = "".join(f'<path d="{d}" transform="translate({shift:g} 0)"/>' for d, shift in strokes if d)
    return (f'<g transform="translate({left:.1f} {top:.1f}) scale({scale})" fill="none" stroke="{color}" '
            f'stroke-width="{2.3 / scale:.2f}" stroke-linecap="round" stroke-linejoin="round">{paths}</g>')


def knob(key, colors):
    x, y, r = (key.x + 0.5) * UNIT, (key.y + 0.5) * UNIT, 0.47 * UNIT
    return (f'<circle cx="{x:.1f}" cy="{y + 4:.1f}" r="{r:.1f}" fill="#000" fill-opacity=".45"/>'
            f'<circle cx="{x:.1f}" cy="{y:.1f}" r="{r - 1:.1f}" fill="{colors.metal[1]}" stroke="#FFFFFF" '
            f'stroke-opacity=".55" stroke-width="4" stroke-dasharray="2 2.6"/>'
            f'<circle cx="{x:.1f}" cy="{y:.1f}" r="{r - 5:.1f}" fill="url(#metal)"/>'
            f'<path d="M{x:.1f} {y - r + 9:.1f}v7" stroke="{colors.accents[1]}" stroke-width="3.5" '
            f'stroke-linecap="round"/>')


def cap_sides(layout, colors):
    """The lower edges of all key caps."""
    return "".join(
        rect((key.x + GAP) * UNIT, (key.y + GAP) * UNIT, (key.width - 2 * GAP) * UNIT, (key.height - 2 * GAP) * UNIT,
             9, f'fill="{getattr(colors, group(key.label))[2]}"')
        for key in keys(layout) if key.label != "KNOB")


def cap_faces(layout, colors, legends=True):
    """The faces of all key caps, with what stands on them, and the knob."""
    parts = []
    for key in keys(layout):
        if key.label == "KNOB":
            parts.append(knob(key, colors))
            continue
        name = group(key.label)
        x, y = (key.x + GAP) * UNIT + 4, (key.y + GAP) * UNIT + 1.5
        width, height = (key.width - 2 * GAP) * UNIT - 8, (key.height - 2 * GAP) * UNIT - 9
        parts.append(rect(x, y, width, height, 7.5, f'fill="url(#{name})"'))
        parts.append(rect(x + 0.75, y + 0.75, width - 1.5, height - 1.5, 7,
                          'fill="none" stroke="#FFFFFF" stroke-opacity=".22" stroke-width="1.5"'))
        if legends:
            parts.append(legend(key.label, x, y, width, getattr(colors, name)[3]))
    return "".join(parts)


def case(layout, colors):
    """The body without keys: shell, lit edge and the plate that the keys stand on."""
    width, height = extent(layout)
    inset = (BEZEL - 0.12) * UNIT
    return "".join([
        rect(0, 0, width, height, 26, 'fill="url(#body)"'),
        rect(1, 1, width - 2, height - 2, 25, 'fill="none" stroke="#FFFFFF" stroke-opacity=".2" stroke-width="2"'),
        rect(inset, inset, width - 2 * inset, height - 2 * inset, 14, f'fill="{colors.plate}"'),
        rect(width * 0.08, height - inset * 0.62, width * 0.84, 4, 2, 'fill="url(#glow)"'),
    ])


def keyboard(layout, colors, legends=True):
    """A whole picture of a keyboard from above, with its shadow."""
    width, height = extent(layout)
    margin = 34
    return "".join([
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width + 2 * margin:.0f}" height="{height + 2 * margin:.0f}">',
        f"<defs>{definitions(colors)}</defs>",
        f'<g transform="translate({margin} {margin - 8})">',
        rect(6, 16, width - 12, height, 30, 'fill="#120A20" fill-opacity=".38" filter="url(#soft)"'),
        case(layout, colors),
        f'<g transform="translate({BEZEL * UNIT} {BEZEL * UNIT})">',
        cap_sides(layout, colors), cap_faces(layout, colors, legends),
        "</g></g></svg>",
    ])
