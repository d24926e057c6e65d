"""Scenes of charts."""
import math

import numpy

from drawings_palette import hsv


def axes(pen, p, w, h):
    left, bottom, size = pen.whole(16, 34), h - pen.whole(12, 24), pen.between(6.5, 10)
    step = pen.between(14, 40)
    for i in range(int(max(w, h) / step) + 1):
        x, y = round(left + i * step) + 0.5, round(bottom - i * step) + 0.5
        pen.line((left, y), (w, y))
        pen.line((x, 0), (x, bottom))
        pen.stroke(p.rule, 1, dash=[2, 2] if step > 28 else None)
        pen.text(left - 3, y + size * 0.35, f"{i * 5}", size, p.faint, anchor=1)
        pen.text(x, bottom + size * 1.3, pen.words(1)[:3] if step > 25 else str(i), size, p.faint, anchor=0.5)
    pen.line((left + 0.5, 0), (left + 0.5, bottom + 0.5), (w, bottom + 0.5))
    pen.stroke(p.ink, pen.one([1, 1, 2]))
    return left, bottom


def lines(pen, p, w, h):
    left, bottom = axes(pen, p, w, h)
    n = pen.whole(8, 60)
    for colour in p.accents[: pen.whole(2, 6)]:
        walk = numpy.cumsum(pen.random.normal(0, 1, n))
        walk = (walk - walk.min()) / (numpy.ptp(walk) + 1e-6) * pen.between(0.2, 0.6) + pen.between(0.05, 0.4)
        points = [(left + i * (w - left) / (n - 1), bottom * (1 - v)) for i, v in enumerate(walk)]
        pen.curve(points) if pen.chance(0.5) else pen.line(*points)
        pen.stroke(colour, pen.between(0.6, 3.5), dash=pen.one([None, None, [4, 3], [1, 2]]))
        if pen.chance(0.3):
            pen.line((left, bottom), *points, (w, bottom))
            pen.fill(colour, 0.25)
        if n < 30 and pen.chance(0.6):
            for x, y in points:
                pen.disc(x, y, pen.between(1.5, 3.5))
                pen.fill(p.paper, keep=True)
                pen.stroke(colour, 1.2)
    legend(pen, p, w)


def legend(pen, p, w):
    x, y, size = pen.between(0.3, 0.6) * w, pen.between(6, 30), pen.between(7, 11)
    pen.box(x, y, size * 7, size * 6.4, 2)
    pen.fill(p.paper, 0.9, keep=True)
    pen.stroke(p.rule, 1)
    for i in range(4):
        pen.box(x + 4, y + 4 + i * size * 1.5, size, size)
        pen.fill(p.accents[i])
        pen.text(x + 8 + size, y + 3 + size + i * size * 1.5, pen.words(1), size, p.ink, room=size * 5)


def bars(pen, p, w, h):
    left, bottom = axes(pen, p, w, h)
    n, series, radius = pen.whole(4, 14), pen.whole(1, 3), pen.one([0, 0, 3])
    step = (w - left) / n
    for i in range(n):
        base = bottom
        for s in range(series):
            height = pen.between(0.1, 0.9) * bottom / (series if radius == 0 else 1)
            x = left + i * step + (step * 0.1 if radius == 0 else step * (0.1 + 0.8 * s / series))
            pen.box(x, base - height, step * (0.8 if radius == 0 else 0.75 / series), height, radius)
            pen.fill(p.accents[s])
            base -= height if radius == 0 else 0
        pen.text(left + (i + 0.5) * step, base - 3, pen.number(), 7, p.ink, anchor=0.5, room=step)


def pie(pen, p, w, h):
    radius = pen.between(0.2, 0.48) * min(w, h)
    for row in range(math.ceil(h / radius / 2)):
        for column in range(math.ceil(w / radius / 2)):
            x, y, turn = (column * 2 + 1) * radius * 1.02, (row * 2 + 1) * radius * 1.02, 0.0
            while turn < math.tau:
                end, colour = min(turn + pen.between(0.2, 1.6), math.tau), pen.one(p.accents)
                pen.c.move_to(x, y)
                pen.c.arc(x, y, radius * 0.95, turn, end)
                pen.c.close_path()
                pen.fill(colour, keep=True)
                pen.stroke(p.paper, pen.between(0.5, 2))
                middle = (turn + end) / 2
                pen.text(x + math.cos(middle) * radius * 0.7, y + math.sin(middle) * radius * 0.7, pen.number(),
                         max(6, radius * 0.11), p.ink, anchor=0.5)
                turn = end
            if pen.chance(0.5):
                pen.disc(x, y, radius * 0.45)
                pen.fill(p.paper)
                size, room = radius * 0.25, radius * 0.85
                pen.text(x, y + size * 0.4, pen.number(), size, p.ink, anchor=0.5, bold=True, room=room)


def scatter(pen, p, w, h):
    left, bottom = axes(pen, p, w, h)
    if pen.chance(0.4):
        cell, hue = pen.whole(7, 22), pen.between(0, 1)
        for y in range(0, int(bottom), cell):
            for x in range(left, int(w), cell):
                heat = 0.5 + 0.5 * math.sin(x * 0.03 + math.sin(y * 0.05) * 2) * pen.between(0.5, 1)
                pen.c.rectangle(x, y, cell - 1, cell - 1)
                pen.fill(hsv(hue + heat * 0.3, 0.8, 0.2 + 0.8 * heat))
        return
    for colour in p.accents[: pen.whole(2, 5)]:
        x, y, spread = pen.between(left, w), pen.between(0, bottom), pen.between(10, 60)
        shape = pen.whole(0, 2)
        for dx, dy in pen.random.normal(0, spread, (pen.whole(40, 180), 2)):
            size = pen.between(1.2, 4)
            if shape == 0:
                pen.disc(x + dx, y + dy, size)
                pen.fill(colour, 0.8)
            elif shape == 1:
                pen.line((x + dx - size, y + dy - size), (x + dx + size, y + dy + size))
                pen.line((x + dx + size, y + dy - size), (x + dx - size, y + dy + size))
                pen.stroke(colour, 1)
            else:
                pen.box(x + dx - size, y + dy - size, size * 2, size * 2)
                pen.fill(p.paper, keep=True)
                pen.stroke(colour, 1)


SCENES = (lines, bars, pie, scatter)
