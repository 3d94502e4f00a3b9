"""Pictures of the devices in data/config, and the two opening pictures. Each is a function that returns SVG."""

import re
from pathlib import Path

from board import (BEZEL, UNIT, Colors, cap_faces, cap_sides, case, definitions, extent, gradient, keyboard, rect)

NIGHT = Colors()
SNOW = Colors(
    body=("#FFFFFF", "#D9D5E2"), plate="#B7B1C4", letters=("#FFFFFF", "#F3F1F8", "#CFCADB", "#5B5468"),
    others=("#E4E0EE", "#D2CCDF", "#AEA6C0", "#4A4359"), glow="#7F4AD6")
GRAPHITE = Colors(
    body=("#4B4F58", "#22252B"), plate="#14161A", letters=("#3C4048", "#2D3037", "#17191D", "#F1F2F5"),
    others=("#2B2E35", "#212329", "#0F1113", "#C9CCD4"), accents=("#FFB861", "#FF9A26", "#B4640A", "#2A1A05"),
    glow="#FFA73C", metal=("#FFD9A6", "#C07A22"))
OCEAN = Colors(
    body=("#37586B", "#152936"), plate="#0C1820", letters=("#FFFFFF", "#E4F2F4", "#B2CCD2", "#27434F"),
    others=("#4B7388", "#3A5E72", "#1F3947", "#E6F7FA"), accents=("#5CEBE6", "#26C7C2", "#0F7F80", "#06302F"),
    glow="#39E1DC")
LILAC = Colors(
    body=("#E9DEFA", "#B89EE0"), plate="#8D72B8", letters=("#FFFFFF", "#F4EEFC", "#CDBCE8", "#55407A"),
    others=("#D6C4F2", "#C2AAE8", "#9B80C8", "#3F2B63"), glow="#FFFFFF", metal=("#FFFFFF", "#A98FD1"))
STEEL = Colors(
    body=("#C9CED6", "#8A919D"), plate="#5E6570", letters=("#FFFFFF", "#EEF0F3", "#BFC5CE", "#454B55"),
    others=("#8E96A3", "#7B8390", "#555C68", "#FFFFFF"), accents=("#F0655C", "#D8443A", "#932A22", "#FFFFFF"),
    glow="#FF7A70", metal=("#FFFFFF", "#8A919D"))
PLAIN = Colors(
    body=("#D4D4DA", "#B4B4BD"), plate="#9C9CA6", letters=("#F7F7F9", "#ECECF0", "#C6C6CE", "#8A8A94"),
    others=("#E2E2E8", "#D6D6DE", "#B3B3BD", "#8A8A94"), accents=("#E2E2E8", "#D6D6DE", "#B3B3BD", "#8A8A94"),
    glow="#8A8A94", metal=("#F7F7F9", "#B4B4BD"))


def canvas(width, height, colors, *parts):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}">'
            f'<defs>{definitions(colors)}</defs>{"".join(parts)}</svg>')


def shadow(shape):
    return f'<g fill="#120A20" fill-opacity=".4" filter="url(#soft)" transform="translate(0 14)">{shape}</g>'


def mouse(colors):
    outline = ("M210 30c88 0 138 60 142 160 2 62-14 96-12 160 3 110-42 206-130 206S77 460 80 350c2-64-14-98-12-160"
               "C72 90 122 30 210 30z")
    keys = ("M203 40v196c-48 4-92 14-125 30-4-24-7-48-6-76C76 102 122 44 203 40z",
            "M217 40v196c48 4 92 14 125 30 4-24 7-48 6-76C344 102 298 44 217 40z")
    return canvas(
        420, 600, colors, shadow(f'<path d="{outline}"/>'),
        f'<path d="{outline}" fill="url(#body)" stroke="#FFFFFF" stroke-opacity=".25" stroke-width="2"/>',
        *(f'<path d="{half}" fill="url(#others)"/><path d="{half}" fill="none" stroke="#FFFFFF" '
          f'stroke-opacity=".18" stroke-width="2"/>' for half in keys),
        rect(192, 92, 36, 104, 18, f'fill="{colors.plate}"'),
        rect(199, 106, 22, 76, 11, 'fill="url(#metal)"'),
        *(f'<path d="M202 {y}h16" stroke="{colors.plate}" stroke-opacity=".5" stroke-width="3"/>'
          for y in range(116, 176, 9)),
        rect(198, 214, 24, 42, 12, 'fill="url(#accents)"'),
        f'<path d="M96 420c10 66 48 116 114 118 66-2 104-52 114-118" fill="none" stroke="{colors.glow}" '
        f'stroke-width="5" stroke-linecap="round" stroke-opacity=".9"/>',
        f'<circle cx="210" cy="400" r="30" fill="none" stroke="{colors.glow}" stroke-width="17"/>')


def round_button(x, y, radius, paint, colors):
    return (f'<circle cx="{x}" cy="{y + 5}" r="{radius + 9}" fill="{colors.plate}"/>'
            f'<circle cx="{x}" cy="{y + 6}" r="{radius}" fill="#000" fill-opacity=".35"/>'
            f'<circle cx="{x}" cy="{y}" r="{radius}" fill="url(#{paint})"/>'
            f'<circle cx="{x}" cy="{y}" r="{radius - 8}" fill="none" stroke="#FFFFFF" stroke-opacity=".3" '
            f'stroke-width="2.5"/>')


def hit_box(colors, screen=False):
    """A controller of round buttons: four directions, eight actions and a large one for the thumbs."""
    directions = ((210, 258), (312, 258), (404, 318))
    actions = ((560, 250), (654, 206), (756, 206), (852, 242), (572, 350), (666, 306), (768, 306), (864, 342))
    parts = [
        shadow(rect(40, 40, 1000, 520, 54, "")),
        rect(40, 40, 1000, 520, 54, 'fill="url(#body)"'),
        rect(42, 42, 996, 516, 52, 'fill="none" stroke="#FFFFFF" stroke-opacity=".25" stroke-width="3"'),
        rect(66, 66, 948, 468, 34, f'fill="{colors.plate}" fill-opacity=".55"'),
        rect(150, 536, 780, 6, 3, 'fill="url(#glow)"'),
        *(round_button(x, y, 42, "letters", colors) for x, y in directions),
        *(round_button(x, y, 42, "accents" if i in (0, 4) else "others", colors) for i, (x, y) in enumerate(actions)),
        round_button(470, 452, 54, "letters", colors),
    ]
    if screen:
        wave = " ".join(f"{x} {y}" for x, y in ((140, 168), (166, 168), (180, 140), (200, 184), (220, 120), (242, 176),
                                                (258, 156), (276, 168), (320, 168)))
        parts += [rect(104, 96, 256, 108, 16, 'fill="#0B0910" stroke="#FFFFFF" stroke-opacity=".3" stroke-width="3"'),
                  f'<polyline points="{wave}" fill="none" stroke="{colors.glow}" stroke-width="6" '
                  f'stroke-linecap="round" stroke-linejoin="round"/>',
                  rect(126, 114, 66, 8, 4, 'fill="#FFFFFF" fill-opacity=".65"')]
    else:
        parts += [rect(104 + 62 * i, 106, 44, 22, 11, 'fill="url(#others)"') for i in range(4)]
    return canvas(1080, 610, colors, *parts)


def receiver(colors):
    return canvas(
        300, 600, colors,
        shadow(rect(70, 50, 160, 480, 40, "")),
        rect(88, 360, 124, 178, 10, 'fill="url(#metal)"'),
        rect(112, 400, 34, 40, 4, f'fill="{colors.plate}"'), rect(154, 400, 34, 40, 4, f'fill="{colors.plate}"'),
        rect(70, 50, 160, 330, 40, 'fill="url(#body)"'),
        rect(72, 52, 156, 326, 38, 'fill="none" stroke="#FFFFFF" stroke-opacity=".3" stroke-width="3"'),
        f'<circle cx="150" cy="150" r="26" fill="none" stroke="{colors.glow}" stroke-width="15"/>')


def unknown(colors):
    """A device of a kind that the hub has no picture for: a body with a plug."""
    return canvas(
        760, 420, colors, shadow(rect(40, 40, 680, 320, 60, "")),
        rect(40, 40, 680, 320, 60, 'fill="url(#body)"'),
        rect(42, 42, 676, 316, 58, 'fill="none" stroke="#FFFFFF" stroke-opacity=".45" stroke-width="3"'),
        '<g transform="translate(290 110) scale(7.5)" fill="none" stroke="#FFFFFF" stroke-width="1.75" '
        'stroke-linecap="round" stroke-linejoin="round"><path d="M12 17.25V4.5M9.5 6.5 12 3l2.5 3.5M12 16.25 7.25 '
        '13.5v-2.25M12 13.75 16.75 11V9.5M15.5 6.5H18V9h-2.5z"/><circle cx="12" cy="19.1" r="1.9"/>'
        '<circle cx="7.25" cy="9.75" r="1.5"/></g>')


TILT = "matrix(.8 .25 -.44 .57 330 200)"


def tilted(layout, colors, shade, opacity):
    """A keyboard seen from the side: body and caps are raised by drawing their outlines on each other."""
    def raised(shape, bottom, top, step=1.5):
        return "".join(f'<use href="#{shape}" transform="translate(0 {bottom - i * step:.1f}) {TILT}"/>'
                       for i in range(int((bottom - top) / step)))

    width, height = extent(layout)
    at = f"translate({BEZEL * UNIT} {BEZEL * UNIT})"
    return "".join([
        "<defs>", rect(0, 0, width, height, 26, f'id="slab" fill="{colors.body[1]}"'),
        f'<g id="sides"><g transform="{at}">{cap_sides(layout, colors)}</g></g></defs>',
        '<filter id="haze" color-interpolation-filters="sRGB" x="-30%" y="-30%" width="160%" height="160%">'
        '<feGaussianBlur stdDeviation="34"/></filter>',
        f'<g filter="url(#haze)"><g transform="translate(0 62) {TILT}">',
        rect(10, 10, width - 20, height - 20, 40, f'fill="{shade}" fill-opacity="{opacity}"'), "</g></g>",
        raised("slab", 34, 0),
        f'<g transform="{TILT}">{case(layout, colors)}</g>',
        raised("sides", 0, -13),
        f'<g transform="translate(0 -13) {TILT}"><g transform="{at}">{cap_faces(layout, colors)}</g></g>',
    ])


def rings(x, y, color, opacities):
    return "".join(f'<circle cx="{x}" cy="{y}" r="{250 + 130 * i}" fill="none" stroke="{color}" '
                   f'stroke-width="{74 - 9 * i}" stroke-opacity="{opacity}"/>' for i, opacity in enumerate(opacities))


def opening(colors, sky, ring, opacities, ground, name=""):
    """The picture of the whole window while the hub looks for devices. Its lowest part is left to a text."""
    return "".join([
        '<svg xmlns="http://www.w3.org/2000/svg" width="1280" height="900" viewBox="0 0 1280 900">',
        f'<defs>{definitions(colors)}{gradient("sky", *sky)}</defs>',
        '<rect width="1280" height="900" fill="url(#sky)"/>',
        rings(930, 300, ring, opacities),
        tilted("75 knob", colors, *ground),
        name, "</svg>",
    ])


def portrait():
    """The newest keyboard for pages that show it without a device."""
    return "".join([
        '<svg xmlns="http://www.w3.org/2000/svg" width="520" height="296" viewBox="110 176 1080 615">',
        f"<defs>{definitions(NIGHT)}</defs>",
        tilted("75 knob", NIGHT, "#120A20", 0.4), "</svg>",
    ])


def wordmark():
    """The name as it stands in the window, for dark ground."""
    name = (Path(__file__).parent / "OrbeFlag.svg").read_text()
    name = name.replace("#222222", "#FFFFFF").replace("#6329B6", "#B48BFF")
    return f'<g transform="translate(56 52) scale(1.5)" fill="none">{re.sub("</?svg[^>]*>", "", name)}</g>'


def beside_program():
    """File name in data/images without extension -> SVG. Blanks of a display name are dashes here."""
    return {
        "MainPicture": opening(NIGHT, ("#3A1D70", "#251443", "#130C22"), "#9B62F2", (0.2, 0.13, 0.08, 0.045),
                               ("#A872FF", 0.8), wordmark()),
        "trgear": opening(STEEL, ("#FFFFFF", "#C9CED6", "#23262C"), "#FFFFFF", (0.5, 0.35, 0.2, 0.1),
                          ("#14161A", 0.55)),
        "default0": keyboard("75", PLAIN, legends=False),
        "default1": mouse(PLAIN),
        "default2": receiver(PLAIN),
        "default3": hit_box(PLAIN),
        "default255": unknown(PLAIN),
        "Orbe-7090": keyboard("75 knob", NIGHT),
        "Orbe-Magnetic-68": keyboard("68", SNOW),
        "Orbe-Magnetic-75": keyboard("75", GRAPHITE),
        "Orbe-Cloud-98": keyboard("98", OCEAN),
        "Orbe-Cloud-Mouse": mouse(NIGHT),
        "Orbe-Hit-Box": hit_box(NIGHT),
        "Orbe-Hit-Box-Screen": hit_box(OCEAN, screen=True),
        "Orbe-WS-Keyboard": keyboard("68", LILAC),
        "Orbe-BY-Keyboard": keyboard("75", STEEL),
        "Orbe-JM-Keyboard": keyboard("61", NIGHT),
        "Tarnwick-7090": keyboard("75 knob", GRAPHITE),
        "Tarnwick-Magnetic-68": keyboard("68", STEEL),
        "Tarnwick-Magnetic-75": keyboard("75", OCEAN),
        "Tarnwick-Cloud-98": keyboard("98", SNOW),
        "Tarnwick-Cloud-Mouse": mouse(GRAPHITE),
        "Tarnwick-Hit-Box": hit_box(GRAPHITE),
        "Tarnwick-Hit-Box-Screen": hit_box(STEEL, screen=True),
    }
