"""Scenes of art: landscapes and logos."""
import math

import numpy

from drawings_comics import backdrop, tapered
from drawings_palette import mixed


def landscape(pen, p, w, h):
    sky, far = pen.one(p.accents), pen.one(p.accents + [p.paper])
    outline = pen.between(0.6, 2.5) if pen.chance(0.5) else 0
    pen.gradient(0, 0, w, h, sky, far)
    pen.c.paint()
    sx, sy = pen.between(0, w), pen.between(0, h * 0.4)
    for i in range(pen.whole(1, 5), 0, -1):
        pen.disc(sx, sy, i * w * 0.07)
        pen.fill(mixed(far, (1, 1, 1), 0.4), 1 / i)
    for _ in range(pen.whole(2, 6)):
        x, y, r = pen.between(0, w), pen.between(0, h / 2), pen.between(6, 20)
        for i in range(4):
            pen.disc(x + i * r * 0.9, y - (i % 3) * r * 0.3, r)
        pen.c.rectangle(x, y, r * 2.7, r)
        pen.fill(mixed(sky, (1, 1, 1), pen.between(0.5, 1)))
    layers = pen.whole(3, 6)
    for layer in range(layers):
        base, colour = h * (0.35 + 0.6 * layer / layers), mixed(pen.one(p.accents), far, 0.7 * (1 - layer / layers))
        tops = [(i * w / 7, base + pen.between(-0.12, 0.12) * h) for i in range(-1, 10)]
        sharp = pen.chance(0.4)
        pen.line(*tops) if sharp else pen.curve(tops)
        pen.c.line_to(w * 1.3, h)
        pen.c.line_to(-w * 0.2, h)
        pen.fill(colour, keep=bool(outline))
        if outline:
            pen.stroke(p.ink, outline)
        kind = pen.whole(0, 2)
        for _ in range(pen.whole(4, 14)):
            x, size = pen.between(0, w), pen.between(8, 16) * (1 + layer) / 2
            dark = mixed(colour, (0, 0, 0), pen.between(0.1, 0.5))
            y = base + pen.between(0.02, 0.2) * h
            if kind == 0:
                for i in range(3):
                    foot, top = y - i * size * 0.4, y - size * (0.8 + i * 0.4)
                    pen.line((x - size * 0.4, foot), (x, top), (x + size * 0.4, foot))
                    pen.fill(dark)
            elif kind == 1:
                pen.c.rectangle(x - size * 0.4, y - size * 1.6, size * 0.8, size * 2.5)
                pen.fill(dark, keep=bool(outline))
                if outline:
                    pen.stroke(p.ink, outline)
                for i in range(8):
                    pane = x - size * 0.28 + i % 2 * size * 0.34
                    pen.c.rectangle(pane, y - size * (1.4 - i // 2 * 0.4), size * 0.2, size * 0.22)
                pen.fill(pen.one(p.accents + [(1, 1, 0.7)]))
            else:
                tapered(pen, dark, x, y, -1.57, size * 1.2, 1.5)
                pen.blob(x, y - size, size * 0.6, 0.15)
                pen.fill(mixed(dark, p.accents[2], 0.4), keep=bool(outline))
                if outline:
                    pen.stroke(p.ink, outline)


def logo(pen, p, w, h):
    if pen.chance(0.5):
        backdrop(pen, p, 0, 0, w, h)
    for _ in range(pen.whole(2, 5) if w > 150 else 2):
        x, y = pen.between(0.1, 0.9) * w, pen.between(0.1, 0.9) * h
        r, kind = pen.between(0.25, 0.6) * min(w, h), pen.whole(0, 5)
        a, b = pen.one(p.accents), pen.one(p.accents + [p.ink])
        if kind == 0:
            k, m = pen.whole(2, 9), pen.whole(3, 13)
            t = numpy.linspace(0, math.tau, 900)
            across, down = numpy.cos(t) + 0.6 * numpy.cos(k * t), numpy.sin(t) - 0.6 * numpy.sin(m * t)
            pen.line(*zip(x + r * across / 1.6, y + r * down / 1.6))
            pen.stroke(a, pen.between(0.4, 2.2))
        elif kind == 1:
            n = pen.whole(3, 12)
            for i in range(n):
                t = i * math.tau / n
                pen.disc(x + math.cos(t) * r * 0.5, y + math.sin(t) * r * 0.5, r * 0.5)
                pen.fill(p.accents[i % 6], pen.between(0.4, 0.9))
        elif kind == 2:
            n, inner = pen.whole(4, 24), pen.between(0.3, 0.9)
            reach = [(i * math.pi / n, r * (inner if i % 2 else 1)) for i in range(2 * n)]
            pen.line(*[(x + math.sin(t) * q, y + math.cos(t) * q) for t, q in reach])
            pen.c.close_path()
            pen.gradient(x - r, y - r, r * 2, r * 2, a, b)
            pen.c.fill_preserve()
            pen.stroke(p.ink, pen.between(0.5, 4))
            pen.text(x, y + r * 0.2, pen.words(1), r * 0.5, p.paper, bold=True, anchor=0.5, room=r * 1.6)
        elif kind == 3:
            for i in range(pen.whole(5, 16)):
                pen.c.arc(x, y, r * (i + 2) / 14, pen.between(0, 6), pen.between(3, 12))
                pen.stroke(pen.one(p.accents), pen.between(0.5, r / 16))
        elif kind == 4:
            pen.icon(x - r, y - r, r * 2, a)
        else:
            for i in range(pen.whole(20, 70)):
                rise, fall = r * math.sin(i * 0.09), r * math.cos(i * 0.06)
                pen.curve([(0, h * i / 50), (w * 0.3, y + rise), (w * 0.7, y - fall), (w, h * (60 - i) / 50)])
            pen.stroke(a, pen.between(0.3, 1.1))
    size, bold = pen.between(14, 40), pen.chance(0.5)
    pen.text(w / 2, h - pen.between(5, 20), pen.words(1, 2), size, p.ink, bold=bold, anchor=0.5, room=w - 10)


SCENES = (landscape, logo, landscape)
