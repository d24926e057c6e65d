"""Scenes of plans: street maps, technical drawings, circuits, sheet music and test patterns."""
import math

import numpy

from drawings_palette import FIXED, hsv, mixed


def streets(pen, p, w, h):
    land, low = mixed(p.paper, p.accents[0], 0.1), 0.5 if p.dark else 0
    water, park = hsv(0.57, 0.4, 0.9 - low), hsv(0.33, 0.3, 0.85 - low)
    pen.c.rectangle(0, 0, w, h)
    pen.fill(land)
    for colour in (water, park, park, water):
        pen.blob(pen.between(0, w), pen.between(0, h), pen.between(0.15, 0.4) * w, 0.4)
        pen.fill(colour)
    pen.c.save()
    pen.c.translate(w / 2, h / 2)
    pen.c.rotate(pen.between(-0.8, 0.8))
    cell, reach = pen.between(16, 36), int(max(w, h))
    for x in numpy.arange(-reach, reach, cell):
        for y in numpy.arange(-reach, reach, cell * 1.5):
            if pen.chance(0.6):
                pen.box(x + 4, y + 4, cell - 8, cell * pen.between(0.5, 1.2), 1)
                pen.fill(mixed(land, p.ink, pen.between(0.1, 0.2)))
    ways = []
    for i in range(-int(reach / cell), int(reach / cell)):
        if pen.chance(0.75):
            ways += [[(i * cell, -reach), (i * cell, reach)]]
        if pen.chance(0.75):
            ways += [[(-reach, i * cell * 1.5), (reach, i * cell * 1.5)]]
    for width, colour in ((4, p.rule), (2.6, mixed(p.paper, (1, 1, 1), 0.6))):
        for way in ways:
            pen.line(*way)
            pen.stroke(colour, width)
    main = [[(pen.between(-w, w), (j / 3 - 1) * h) for j in range(7)] for _ in range(3)]
    for width, colour in ((8, p.ink), (6, p.accents[1]), (1, p.paper)):
        for way in main:
            pen.curve(way)
            pen.stroke(colour, width, dash=[5, 4] if width == 1 else None)
    for way in ways[::2]:
        pen.text(pen.between(-w, w) / 2, way[0][1] + 2.5 if way[0][1] != -reach else 0, pen.words(1, 2), 7, p.ink)
    pen.c.restore()
    for _ in range(pen.whole(2, 6)):
        x, y = pen.between(0, w), pen.between(0, h)
        pen.disc(x, y, 7)
        pen.fill(p.accents[2])
        pen.icon(x - 5, y - 5, 10, (1, 1, 1))
        pen.text(x + 9, y + 4, pen.words(1, 2), pen.between(8, 14), p.ink, bold=True)


def technical(pen, p, w, h):
    ink = p.ink
    step = pen.between(8, 16)
    for i in range(int(max(w, h) / step) + 1):
        pen.line((i * step, 0), (i * step, h))
        pen.line((0, i * step), (w, i * step))
    pen.stroke(p.rule, 0.4)
    for _ in range(int(w * h / pen.between(5000, 11000)) + 2):
        x, y, r = pen.between(0, w), pen.between(0, h), pen.between(14, 60)
        if pen.chance(0.5):
            for q in (r, r * 0.7, r * 0.25):
                pen.disc(x, y, q)
                pen.stroke(ink, pen.between(0.6, 2))
            for i in range(6):
                pen.disc(x + math.cos(i * 1.047) * r * 0.85, y + math.sin(i * 1.047) * r * 0.85, r * 0.08)
                pen.stroke(ink, 0.8)
        else:
            pen.box(x - r, y - r / 2, r * 2, r, pen.one([0, 5]))
            pen.c.save()
            pen.fill(p.paper, keep=True)
            pen.c.clip_preserve()
            pen.stroke(ink, 3)
            gap = pen.between(3, 7)
            for i in range(int(r * 4 / gap)):
                pen.line((x - r * 2 + i * gap, y - r), (x - r + i * gap, y + r))
            pen.stroke(ink, 0.5)
            pen.c.restore()
        pen.line((x - r * 1.2, y), (x + r * 1.2, y))
        pen.line((x, y - r * 1.2), (x, y + r * 1.2))
        pen.stroke(p.accents[0], 0.6, dash=[8, 2, 2, 2])
        level = y + r + pen.between(4, 10)
        pen.line((x - r, y), (x - r, level + 3))
        pen.line((x + r, y), (x + r, level + 3))
        pen.line((x - r, level), (x + r, level))
        for end in (1, -1):
            pen.line((x + end * (r - 5), level - 2), (x + end * r, level), (x + end * (r - 5), level + 2))
        pen.stroke(ink, 0.7)
        measure = pen.one(["R", "", ""]) + pen.number()
        pen.text(x, level - 2, measure, pen.between(7, 10), ink, pen.one(FIXED), anchor=0.5)


def circuit(pen, p, w, h):
    cell, width = pen.whole(9, 18), pen.between(0.8, 3)
    for _ in range(int(w * h / cell / cell / pen.between(3, 9))):
        x, y = pen.whole(0, int(w / cell)) * cell + 0.5, pen.whole(0, int(h / cell)) * cell + 0.5
        points, colour = [(x, y)], pen.one(p.accents[:2] + [p.ink])
        for _ in range(pen.whole(1, 4)):
            dx, dy = pen.one([(1, 0), (0, 1), (1, 1), (-1, 1)])
            n = pen.whole(1, 4) * cell
            points.append((points[-1][0] + dx * n, points[-1][1] + dy * n))
        pen.line(*points)
        pen.stroke(colour, width)
        pen.disc(*points[-1], width * 1.7)
        pen.fill(p.paper, keep=True)
        pen.stroke(colour, width * 0.7)
    for _ in range(pen.whole(1, 5)):
        x, y, ww, hh = pen.whole(0, int(w)), pen.whole(0, int(h)), pen.whole(2, 5) * cell, pen.whole(2, 4) * cell
        for i in range(0, ww, cell):
            pen.line((x + i + cell / 2, y - 6), (x + i + cell / 2, y + hh + 6))
        pen.stroke(p.rule, 2.5)
        pen.box(x, y, ww, hh, 2)
        pen.fill(p.panel, keep=True)
        pen.stroke(p.ink, 1)
        part = pen.words(1).upper()[:4] + str(pen.whole(1, 99))
        pen.text(x + 4, y + hh / 2 + 3, part, 8, p.ink, pen.one(FIXED), room=ww)


def music(pen, p, w, h):
    gap = pen.between(4, 9)
    for staff in range(int(h / gap / 9) + 1):
        top = staff * gap * 9 + gap * 2
        for i in range(5):
            pen.line((0, top + i * gap), (w, top + i * gap))
        pen.stroke(p.ink, gap * 0.1 + 0.3)
        x = gap * 2
        while x < w:
            group, up = pen.whole(1, 4), pen.chance(0.5)
            ends = []
            for _ in range(group):
                y = top + pen.whole(-1, 9) * gap / 2
                pen.c.save()
                pen.c.translate(x, y)
                pen.c.rotate(-0.35)
                pen.c.scale(gap * 0.62, gap * 0.45)
                pen.disc(0, 0, 1)
                pen.c.restore()
                pen.stroke(p.ink, gap * 0.18) if group == 1 else pen.fill(p.ink)
                ends.append((x + gap * (0.55 if up else -0.55), y, top + gap * (-2.2 if up else 6)))
                x += gap * pen.between(2, 3.2)
            for sx, sy, end in ends:
                pen.line((sx, sy), (sx, end))
            pen.stroke(p.ink, gap * 0.14)
            if group > 1:
                pen.line(ends[0][::2], ends[-1][::2])
                pen.stroke(p.ink, gap * 0.5)
            if pen.chance(0.3):
                pen.line((x, top), (x, top + gap * 4))
                pen.stroke(p.ink, 1)
                x += gap * 2
        verse, x = pen.words(3, 6).lower(), pen.between(0, w / 2)
        pen.text(x, top + gap * 7.6, verse, gap * 1.5, p.ink, "Liberation Serif", italic=True)


SCENES = (streets, technical, circuit, music)
