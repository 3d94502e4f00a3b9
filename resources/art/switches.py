"""Pictures of a magnetic switch: one for each type, and a key on its way down."""

from board import gradient, rect

# Number of the picture -> colour of the type's stem.
TYPES = {1: "#7969F3", 2: "#F369A7", 3: "#C7D827", 5: "#FF6BF3", 6: "#FF8E32", 9: "#2FC1FF", 10: "#870339",
         14: "#2258A9"}
FRAMES = 10


def document(size, *parts):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{size}" height="{size}" viewBox="0 0 96 96" fill="none">'
            + "".join(parts) + "</svg>")


def housing():
    """The lower half of a switch with its two magnets' legs."""
    return "".join([
        "<defs>", gradient("shell", "#5A5465", "#2A2533"), gradient("lid", "#FFFFFF", "#D9D6E2"), "</defs>",
        rect(28, 82, 6, 10, 2, 'fill="#B9B4C6"'), rect(62, 82, 6, 10, 2, 'fill="#B9B4C6"'),
        '<path d="M18 62h60l-4 20a4 4 0 0 1-4 3H26a4 4 0 0 1-4-3z" fill="url(#shell)"/>',
        '<path d="M26 42h44l8 20H18z" fill="url(#lid)" fill-opacity=".85" stroke="#B9B4C6" stroke-width="1.75" '
        'stroke-linejoin="round"/>',
    ])


def switch(color):
    return document(
        56, f"<defs>{gradient('stem', color, color)}</defs>", housing(),
        f'<path d="M34 42V22a4 4 0 0 1 4-4h20a4 4 0 0 1 4 4v20z" fill="{color}"/>',
        '<path d="M34 42V22a4 4 0 0 1 4-4h6v24z" fill="#FFFFFF" fill-opacity=".3"/>',
        rect(44, 6, 8, 13, 2.5, f'fill="{color}"'), rect(40, 10, 16, 5, 2.5, f'fill="{color}"'),
        f'<path d="M30 62h36" stroke="{color}" stroke-width="4" stroke-linecap="round" stroke-opacity=".7"/>')


def pressed(frame):
    """The key at rest in the last frame and at the bottom in frame 0."""
    down = (FRAMES - 1 - frame) * 2.2
    depth = 1 - frame / (FRAMES - 1)
    return document(
        140, housing(),
        rect(40, 26 + down, 16, 30 - down * 0.6, 3, 'fill="#6329B6"'),
        f'<g transform="translate(0 {down:.1f})"><defs>{gradient("cap", "#FFFFFF", "#DDD8EA")}</defs>'
        '<path d="M20 10a5 5 0 0 1 5-4.5h46a5 5 0 0 1 5 4.5l6 22a4 4 0 0 1-4 5H18a4 4 0 0 1-4-5z" '
        'fill="url(#cap)" stroke="#BDB4D2" stroke-width="1.75" stroke-linejoin="round"/>'
        '<path d="M24 11.5h48" stroke="#FFFFFF" stroke-width="3" stroke-linecap="round"/></g>',
        f'<path d="M36 73h24" stroke="#9B62F2" stroke-width="5" stroke-linecap="round" stroke-opacity="{depth:.2f}"/>')


def pictures():
    """Name under resources/images without extension -> SVG."""
    return {f"rt/mtico{number:02}": switch(color) for number, color in TYPES.items()} | {
        f"press/press{frame:02}": pressed(frame) for frame in range(FRAMES)}
