"""Scenes of even texture: test patterns, contour and halftone prints, pixel art."""
import math

import numpy

from drawings_palette import mixed


def patterns(pen, p, w, h):
    cell, a, b = pen.between(36, 110), p.ink, p.paper
    for row in range(int(h / cell) + 1):
        for column in range(int(w / cell) + 1):
            x, y, kind, period = column * cell, row * cell, pen.whole(0, 6), pen.one([1, 2, 2, 3, 4, 6, 9])
            a, b = (p.ink, p.paper) if pen.chance(0.5) else (pen.one(p.accents), pen.one(p.accents + [p.paper]))
            pen.c.save()
            pen.c.rectangle(round(x), round(y), cell + 1, cell + 1)
            pen.c.clip_preserve()
            pen.fill(b)
            if kind == 0:
                for i in range(int(cell / period) + 1):
                    for j in range(i % 2, int(cell / period) + 1, 2):
                        pen.c.rectangle(round(x) + i * period, round(y) + j * period, period, period)
                pen.fill(a)
            elif kind == 1:
                for i in range(0, int(cell) + 1, period * 2):
                    pen.c.rectangle(round(x) + i, y, period, cell + 1)
                pen.fill(a)
            elif kind == 2:
                for i in range(-int(cell), int(cell * 2), max(4, period * 2)):
                    pen.line((x + i, y), (x + i + cell * pen.one([1, 1, 0.5]), y + cell))
                pen.stroke(a, max(0.7, period * 0.7))
            elif kind == 3:
                spokes = pen.whole(12, 40)
                for i in range(spokes):
                    pen.c.move_to(x + cell / 2, y + cell / 2)
                    pen.c.arc(x + cell / 2, y + cell / 2, cell, i * math.tau / spokes, (i + 0.5) * math.tau / spokes)
                pen.fill(a)
            elif kind == 4:
                for i in range(int(cell / (period + 2)), 0, -1):
                    pen.disc(x + cell / 2, y + cell / 2, i * (period + 2) * 0.7)
                    pen.fill(a if i % 2 else b)
            elif kind == 5:
                pen.gradient(x, y, cell, cell, a, b, pen.one(p.accents))
                pen.c.paint()
            else:
                step = period + 4
                for i in range(int(cell / step) + 1):
                    for j in range(int(cell / step) + 1):
                        pen.disc(x + (i + j % 2 / 2) * step, y + j * step, step * (0.1 + 0.5 * i * step / cell))
                pen.fill(a)
            pen.c.restore()


def noise(pen, columns, rows, period):
    """Smooth noise in 0..1: sums of random waves."""
    y, x = numpy.mgrid[:rows, :columns]
    field = numpy.zeros((rows, columns))
    for _ in range(9):
        t, f = pen.between(0, math.tau), math.tau / period * pen.between(0.4, 1.3)
        field += numpy.sin((x * math.cos(t) + y * math.sin(t)) * f + pen.between(0, 6))
    return (field - field.min()) / (numpy.ptp(field) + 1e-9)


def contours(pen, p, w, h):
    """A height field in flat steps with lines between, drawn at three times the size and averaged."""
    k = 3
    n = math.ceil(max(w, h) * pen.scale()) * k
    field = noise(pen, n, n, n * pen.between(0.25, 0.7)) * pen.whole(5, 16)
    step, edge = numpy.floor(field).astype(int), field % 1
    table = numpy.array([mixed(p.accents[i % 6], p.paper, pen.between(0, 0.6)) for i in range(18)]) * 255
    slope = numpy.hypot(*numpy.gradient(field)) + 1e-6
    picture = table[step] if pen.chance(0.7) else numpy.broadcast_to(numpy.array(p.paper) * 255, (n, n, 3)).copy()
    picture[numpy.minimum(edge, 1 - edge) / slope < pen.between(1, 4)] = numpy.array(p.ink) * 255
    m = n // k
    picture = picture[: m * k, : m * k].reshape(m, k, m, k, 3).mean((1, 3)).round().astype(numpy.uint8)
    pen.paint(picture)


def halftone(pen, p, w, h):
    step, rows = pen.between(3, 9), 0
    field = noise(pen, 64, 64, 60)
    for colour, turn in zip((p.ink, p.accents[0], p.accents[1])[: pen.whole(1, 3)], (0.3, 0.9, 1.4)):
        pen.c.save()
        pen.c.translate(w / 2, h / 2)
        pen.c.rotate(turn)
        reach = int(max(w, h) / step * 0.75)
        for j in range(-reach, reach):
            for i in range(-reach, reach):
                pen.disc(i * step, j * step, step * 0.7 * field[(j + rows) % 64, i % 64])
        pen.fill(colour, 0.9)
        pen.c.restore()
        rows += 21
    pen.icon(w * 0.2, h * 0.2, min(w, h) * 0.6, p.paper)


def sprites(pen, p, w, h):
    """Mirrored figures with an outline, each in three tones of one colour, over tiled ground."""
    cell, size = pen.one([1, 2, 2, 3, 3, 4, 5, 8]), pen.one([10, 12, 16, 20])
    tones = [mixed(a, b, t) for a in p.accents for b, t in (((0, 0, 0), 0.4), (a, 0), ((1, 1, 1), 0.45))]
    table = numpy.array([p.paper, p.panel, p.ink] + tones) * 255
    columns, rows = int(w * pen.scale() / cell) + size, int(h * pen.scale() / cell) + size
    ground = numpy.where(noise(pen, columns, rows, 30) > 0.6, 3 + pen.whole(0, 17), 0)
    ground += (numpy.add.outer(numpy.arange(rows) // 8, numpy.arange(columns) // 8) % 2) * (ground == 0)
    for top in range(1, rows - size, size + 2):
        for left in range(1, columns - size, size + 2):
            y, x = numpy.mgrid[:size, : size // 2] / size
            body = noise(pen, size // 2, size, size * 0.6) > 0.25 + 1.1 * numpy.hypot(x - 0.5, y - 0.5)
            tone = 3 + pen.whole(0, 5) * 3 + numpy.minimum((noise(pen, size // 2, size, size * 0.5) * 3).astype(int), 2)
            body, tone = numpy.hstack([body, body[:, ::-1]]), numpy.hstack([tone, tone[:, ::-1]])
            solid = numpy.pad(body, 1)
            edge = (solid[:-2, 1:-1] | solid[2:, 1:-1] | solid[1:-1, :-2] | solid[1:-1, 2:]) & ~body
            place = ground[top : top + size, left : left + size]
            place[body], place[edge] = tone[body], 2
    pen.paint(table[ground].round().astype(numpy.uint8), cell)


SCENES = (patterns, contours, halftone, sprites)
