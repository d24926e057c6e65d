"""Makes drawings to train on: interfaces, type, charts, maps, comics, line art, shaded shapes.

python3 drawings.py OUT.npy COUNT SIDE [--seed N] [--sheet FILE.png]
"""
import argparse

import numpy
from PIL import Image

import drawings_art
import drawings_charts
import drawings_comics
import drawings_plans
import drawings_prints
import drawings_screens
import drawings_shaded
import drawings_type
from drawings_palette import Palette
from drawings_pen import Pen

MODULES = (
    drawings_screens,
    drawings_type,
    drawings_charts,
    drawings_plans,
    drawings_comics,
    drawings_art,
    drawings_prints,
    drawings_shaded,
)
SCENES = tuple(scene for module in MODULES for scene in module.SCENES)
ZOOMS = (0.75, 0.9, 1.0, 1.0, 1.0, 1.0, 1.25, 1.5, 2.0, 2.7)


def tiles(random):
    """The whole square, or parts of it that each get a scene of their own."""
    kind = random.random()
    if kind < 0.62:
        return [(0, 0, 1, 1)]
    cut = random.uniform(0.35, 0.65)
    if kind < 0.75:
        return [(0, 0, 1, cut), (0, cut, 1, 1 - cut)]
    if kind < 0.88:
        return [(0, 0, cut, 1), (cut, 0, 1 - cut, 1)]
    other = random.uniform(0.35, 0.65)
    return [(0, 0, cut, other), (cut, 0, 1 - cut, other), (0, other, cut, 1 - other), (cut, other, 1 - cut, 1 - other)]


def drawing(index, side, seed):
    random = numpy.random.default_rng([seed, index])
    pen = Pen(random, side)
    palette = Palette(random)
    # The index walks through the scenes, so that a short run has all of them.
    for number, (x, y, w, h) in enumerate(tiles(random)):
        scene = SCENES[index % len(SCENES)] if number == 0 else pen.one(SCENES)
        if number and pen.chance(0.5):
            palette = Palette(random)
        x, y, right, bottom = (round(v * side) for v in (x, y, x + w, y + h))
        zoom = pen.one(ZOOMS)
        pen.c.save()
        pen.c.rectangle(x, y, right - x, bottom - y)
        pen.c.clip()
        pen.c.translate(x, y)
        pen.c.scale(zoom, zoom)
        pen.box(0, 0, (right - x) / zoom, (bottom - y) / zoom)
        pen.fill(palette.paper)
        scene(pen, palette, (right - x) / zoom, (bottom - y) / zoom)
        pen.c.restore()
    return pen.pixels()


def drawings(count, side=288, seed=1):
    return numpy.stack([drawing(index, side, seed) for index in range(count)])


def sheet(pictures, path, columns=8):
    rows = -(-len(pictures) // columns)
    side = pictures.shape[1]
    whole = numpy.full((rows * (side + 4), columns * (side + 4), 3), 128, numpy.uint8)
    for index, picture in enumerate(pictures):
        top, left = index // columns * (side + 4), index % columns * (side + 4)
        whole[top : top + side, left : left + side] = picture
    Image.fromarray(whole).save(path)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("out")
    parser.add_argument("count", type=int)
    parser.add_argument("side", type=int)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--sheet", help="a picture of the first 64, for looking at")
    options = parser.parse_args()
    pictures = drawings(options.count, options.side, options.seed)
    numpy.save(options.out, pictures)
    if options.sheet:
        sheet(pictures[:64], options.sheet)


if __name__ == "__main__":
    main()
