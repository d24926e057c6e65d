"""Scenes of shaded shapes: ray-traced balls over a floor, isometric boxes, soft gradients, glossy knobs."""
import math

import cairo
import numpy

from drawings_palette import mixed


def traced(pen, p, w, h):
    """Balls and a patterned floor with light, highlights and shadows, at twice the size and averaged."""
    n = math.ceil(max(w, h) * pen.scale()) * 2
    y, x = numpy.mgrid[:n, :n]
    ray = numpy.stack([(x - n / 2) / n * 1.3, (n * 0.42 - y) / n * 1.3, numpy.ones((n, n))], -1)
    ray /= numpy.linalg.norm(ray, axis=-1, keepdims=True)
    light = numpy.array([pen.between(-1, 1), pen.between(0.7, 1.5), pen.between(-1, 0.2)])
    light /= numpy.linalg.norm(light)
    balls = []
    for _ in range(pen.whole(5, 16)):
        r = pen.between(0.15, 0.8)
        above = r - 1 + pen.one([0, 0, pen.between(0, 1.2)])
        middle = numpy.array([pen.between(-1.8, 1.8), above, pen.between(1.8, 5)])
        balls.append((middle, r, numpy.array(pen.one(p.accents)), numpy.array(pen.one(p.accents + [p.paper]))))
    t = pen.between(0, 1)
    fade = t * y[..., None] / n
    picture = numpy.array(p.accents[4]) * (1 - fade) + numpy.array(p.paper) * fade
    depth = numpy.full((n, n), 99.0)
    floor = numpy.where(ray[..., 1] < -0.02, -1 / numpy.minimum(ray[..., 1], -0.02), 99.0)
    hit = floor < 40
    spot = ray * floor[..., None]
    scale, kind = pen.between(0.8, 4), pen.one([0, 1, 1, 1, 2])
    even = (numpy.floor(spot[..., 0] * scale) + (numpy.floor(spot[..., 2] * scale) if kind else 0)) % 2
    dark = numpy.array(pen.one([p.ink, p.accents[3]]))
    ground = numpy.where((even * (kind < 2))[..., None] > 0, dark, numpy.array(p.paper))
    shade = numpy.ones((n, n))
    for middle, r, _, _ in balls:
        away = middle - spot
        along = away @ light
        miss = numpy.sqrt(numpy.maximum((away**2).sum(-1) - along**2, 0))
        shade = numpy.where(along > 0, numpy.minimum(shade, numpy.clip((miss / r - 0.7) / 0.5, 0.25, 1)), shade)
    haze = numpy.clip(floor / 14, 0, 1)[..., None]
    picture = numpy.where(hit[..., None], ground * shade[..., None] * (1 - haze) + picture * haze, picture)
    depth = numpy.where(hit, floor, depth)
    gloss = pen.between(8, 80)
    for middle, r, colour, second in balls:
        b = ray @ middle
        root = b**2 - middle @ middle + r * r
        near = b - numpy.sqrt(numpy.maximum(root, 0))
        seen = (root > 0) & (near > 0) & (near < depth)
        normal = (ray[seen] * near[seen][:, None] - middle) / r
        turned = normal @ pen.random.normal(0, 1, (3, 2)) * pen.between(1, 7)
        marks = numpy.floor(turned[:, 0]) + (numpy.floor(turned[:, 1]) if pen.chance(0.5) else 0)
        if pen.chance(0.5):
            colour = numpy.where(marks[:, None] % 2 > 0, second, colour)
        level = 0.2 + 0.8 * numpy.maximum(normal @ light, 0)
        bounce = ray[seen] - 2 * (ray[seen] * normal).sum(-1, keepdims=True) * normal
        shine = numpy.maximum(bounce @ light, 0) ** gloss
        picture[seen] = colour * level[:, None] + shine[:, None] * 0.8
        depth = numpy.where(seen, near, depth)
    picture = (numpy.clip(picture, 0, 1) ** 0.8).reshape(n // 2, 2, n // 2, 2, 3).mean((1, 3)) * 255
    pen.paint(picture.round().astype(numpy.uint8))


def boxes(pen, p, w, h):
    s, tall = pen.between(12, 34), pen.between(0.8, 3)
    edge, smooth = pen.chance(0.5), pen.chance(0.5)
    for row in range(-2, int(h / s * 2) + 8):
        for column in range(-1, int(w / s / 1.73) + 2):
            x, y = (column + row % 2 / 2) * s * 1.732, row * s / 2
            z, colour = pen.between(0.1, 1) ** 2 * tall * s, pen.one(p.accents[:4])
            a = s * 0.866
            sides = (([(x, y - z), (x + a, y - z - s / 2), (x, y - z - s), (x - a, y - z - s / 2)], 0.0),
                     ([(x, y - z), (x - a, y - z - s / 2), (x - a, y - s / 2 + s), (x, y + s)], 0.3),
                     ([(x, y - z), (x + a, y - z - s / 2), (x + a, y - s / 2 + s), (x, y + s)], 0.55))
            for points, dark in sides:
                pen.line(*points)
                pen.c.close_path()
                tone = mixed(colour, (0, 0, 0.05), dark)
                if smooth and dark:
                    made = cairo.LinearGradient(0, y - z, 0, y + s)
                    made.add_color_stop_rgb(0, *tone)
                    made.add_color_stop_rgb(1, *mixed(tone, p.paper, 0.5))
                    pen.c.set_source(made)
                    pen.c.fill_preserve()
                else:
                    pen.fill(tone, keep=True)
                pen.stroke(p.ink if edge else tone, 1 if edge else 0.6)
            if z > s and pen.chance(0.5):
                for i in range(int(z / 7)):
                    for j in (0.25, 0.6):
                        pane, sill = x + a * j, y - z + 5 + i * 7 - a * j * 0.58
                        pen.line((pane, sill), (pane + a * 0.2, sill - a * 0.116))
                pen.stroke(mixed(colour, (1, 1, 0.8), 0.7), 2.5)


def glow(pen, p, w, h):
    """Overlapping soft light, with glass panels and hairlines on top."""
    pen.gradient(0, 0, w, h, *p.accents[:3])
    pen.c.paint()
    for _ in range(pen.whole(3, 9)):
        x, y, r = pen.between(0, w), pen.between(0, h), pen.between(0.2, 0.7) * w
        colour = pen.one(p.accents + [p.paper])
        made = cairo.RadialGradient(x, y, 0, x, y, r)
        made.add_color_stop_rgba(0, *colour, 0.9)
        made.add_color_stop_rgba(1, *colour, 0)
        pen.c.set_source(made)
        pen.c.paint()
    for _ in range(pen.whole(6, 14)):
        kind, x, y, r = pen.whole(0, 3), pen.between(0, w), pen.between(0, h), pen.between(12, 60)
        if kind == 0:
            pen.shadow(x - r, y - r * 0.6, r * 2, r * 1.2, 8, 10)
            pen.box(x - r, y - r * 0.6, r * 2, r * 1.2, 8)
            pen.fill(pen.one([(1, 1, 1), p.ink, p.paper]), pen.between(0.15, 0.9), keep=True)
            pen.stroke((1, 1, 1), 1, 0.6)
            pen.text(x, y + 4, pen.words(1, 2), pen.between(9, 18), p.ink, anchor=0.5, room=r * 1.8)
        elif kind == 1:
            for i in range(pen.whole(4, 20)):
                pen.curve([(0, y + i * 3), (w * 0.35, y - r + i * 5), (w * 0.7, y + r - i * 4), (w, y + i * 2)])
            pen.stroke((1, 1, 1), pen.between(0.3, 1.2), 0.8)
        elif kind == 2:
            pen.icon(x - r / 2, y - r / 2, r, pen.one([(1, 1, 1), p.ink]))
        else:
            pen.blob(x, y, r, 0.2)
            pen.gradient(x - r, y - r, r * 2, r * 2, pen.one(p.accents), (1, 1, 1), pen.one(p.accents))
            pen.c.fill()


def knobs(pen, p, w, h):
    cell, steel = pen.between(36, 90), pen.between(0.2, 0.85)
    pen.gradient(0, 0, w, h, (steel, steel, steel), mixed((steel,) * 3, p.accents[0], 0.4))
    pen.c.paint()
    for row in range(int(h / cell) + 1):
        for column in range(int(w / cell) + 1):
            x, y, r = (column + 0.5) * cell, (row + 0.45) * cell, cell * 0.34
            colour = pen.one(p.accents + [(0.2, 0.2, 0.22)] * 3)
            made = cairo.RadialGradient(x + r * 0.2, y + r * 0.35, r * 0.6, x + r * 0.2, y + r * 0.35, r * 1.4)
            made.add_color_stop_rgba(0, 0, 0, 0, 0.6)
            made.add_color_stop_rgba(1, 0, 0, 0, 0)
            pen.c.set_source(made)
            pen.c.rectangle(x - cell / 2, y - cell / 2, cell, cell)
            pen.c.fill()
            for q, low, high in ((1, 0.8, -0.6), (0.85, -0.5, 0.45), (0.6, 0.35, -0.35)):
                made = cairo.LinearGradient(x, y - r * q, x, y + r * q)
                for stop, tone in ((0, low), (1, high)):
                    made.add_color_stop_rgb(stop, *mixed(colour, (1, 1, 1) if tone > 0 else (0, 0, 0), abs(tone)))
                pen.disc(x, y, r * q)
                pen.c.set_source(made)
                pen.c.fill()
            t = pen.between(2.3, 7.1)
            pen.line(*[(x + math.cos(t) * r * q, y + math.sin(t) * r * q) for q in (0.3, 0.8)])
            pen.stroke((1, 1, 1), max(1, r * 0.1))
            for i in range(11):
                t = 2.36 + i * 0.471
                pen.line(*[(x + math.cos(t) * r * q, y + math.sin(t) * r * q) for q in (1.1, 1.25)])
            pen.stroke(p.ink, 1)
            pen.text(x, y + cell * 0.52, pen.words(1), max(6, cell * 0.12), p.ink, anchor=0.5)


SCENES = (traced, boxes, glow, knobs)
