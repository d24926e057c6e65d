"""Scenes of set type: articles, code, tables, icon cards and posters."""
import math

from drawings_palette import FIXED, FONTS, mixed


def article(pen, p, w, h):
    columns = 1 if w < 180 else pen.whole(1, 3)
    size, family = pen.between(7, 15), pen.one(FONTS)
    head = pen.between(1.4, 3) * size
    pen.text(6, head + 2, pen.words(2, 6), head, p.ink, pen.one(FONTS), bold=pen.chance(0.7))
    foreign = pen.chance(0.3)
    for column in range(columns):
        room, y = w / columns, head + size * 2
        x = column * room + 6
        while y < h + size:
            if pen.chance(0.05):
                colour = pen.one(p.accents)
                pen.text(x, y + size * 0.4, pen.words(1, 3), size * 1.35, colour, family, True, room=room - 8)
            else:
                words, face = pen.foreign(8, 14) if foreign else (pen.words(9, 16), family)
                short = pen.between(0.3, 0.9) if pen.chance(0.15) else 1
                pen.text(x, y, words, size, p.ink, face, pen.chance(0.04), pen.chance(0.05), room=(room - 10) * short)
            y += size * (1.35 if pen.chance(0.92) else 2.1)


def code(pen, p, w, h):
    size, family, indent, tabs = pen.between(7, 14), pen.one(FIXED), 0, pen.between(18, 30)
    pen.c.rectangle(0, 0, tabs, h)
    pen.fill(p.panel)
    for i in range(int(h / size / 1.3) + 1):
        y = (i + 1) * size * 1.35
        if pen.chance(0.06):
            pen.c.rectangle(tabs, y - size, w, size * 1.35)
            pen.fill(p.rule, 0.5)
        pen.text(tabs - 4, y, str(i + 7), size * 0.9, p.faint, family, anchor=1)
        indent, x = min(max(indent + pen.whole(-1, 1), 0), 4), tabs + 4
        x += indent * size * 1.2
        while x < w * pen.between(0.3, 1.2):
            name, marks = pen.words(1).lower(), ["{", "}", "=>", "+=", "[0]", "&&"]
            named = [name, name + "()", f"<{name}>", f'"{pen.words(1, 2)}"', "// " + pen.words(2, 4), pen.number()]
            token = pen.one(named + marks)
            x += pen.text(x, y, token, size, pen.one(p.accents[:4] + [p.ink] * 4), family) + size * 0.6


def table(pen, p, w, h):
    size = pen.between(7, 13)
    line, y, grid, stripes = round(size * pen.between(1.5, 2)), 0, pen.chance(0.6), pen.chance(0.5)
    edges = [0]
    while edges[-1] < w:
        edges.append(edges[-1] + pen.whole(int(size * 3), int(size * 9)))
    numeric = [pen.chance(0.55) for _ in edges]
    while y < h:
        if y == 0 or stripes and y // line % 2:
            pen.c.rectangle(0, y, w, line)
            pen.fill(p.accents[0] if y == 0 else p.panel)
        for i, (left, right) in enumerate(zip(edges, edges[1:])):
            if pen.chance(0.08) and y:
                pen.c.rectangle(left, y, right - left, line)
                pen.fill(pen.one(p.accents), 0.5)
            words = pen.number() if numeric[i] and y else pen.words(1, 2)
            ink = p.ink if y else (1, 1, 1) if sum(p.accents[0]) < 1.9 else (0, 0, 0)
            pen.text(right - 4 if numeric[i] else left + 4, y + line * 0.7, words, size, ink, bold=not y,
                     anchor=float(numeric[i]), room=right - left - 6)
            if grid:
                pen.line((right + 0.5, y), (right + 0.5, y + line))
                pen.stroke(p.rule, 1)
        pen.line((0, y + line - 0.5), (w, y + line - 0.5))
        pen.stroke(p.rule, 1)
        y += line


def cards(pen, p, w, h):
    cell, gap = pen.between(34, 90), pen.between(3, 10)
    radius, plain, label = pen.one([0, 4, 12, 40]), pen.chance(0.4), pen.chance(0.6)
    for row in range(int(h / cell) + 1):
        for column in range(int(w / cell) + 1):
            x, y, side, accent = column * cell + gap / 2, row * cell + gap / 2, cell - gap, pen.one(p.accents)
            pen.box(x, y, side, side, radius)
            if plain:
                pen.fill(p.panel)
            else:
                pen.gradient(x, y, side, side, accent, mixed(accent, pen.one([p.ink, p.paper]), pen.between(0, 0.6)))
                pen.c.fill()
            size = side * (0.5 if label else pen.between(0.4, 0.85))
            top = y + (side - size) * (0.3 if label else 0.5)
            pen.icon(x + (side - size) / 2, top, size, accent if plain else p.paper)
            if label:
                pen.text(x + side / 2, y + side * 0.9, pen.words(1), max(6, side * 0.17), p.ink, anchor=0.5, room=side)


def poster(pen, p, w, h):
    if pen.chance(0.5):
        pen.gradient(0, 0, w, h, p.paper, mixed(p.paper, pen.one(p.accents), 0.6))
        pen.c.paint()
    y, turn = 0.0, pen.between(-0.4, 0.4) if pen.chance(0.4) else 0
    pen.c.translate(w / 2, h / 2)
    pen.c.rotate(turn)
    pen.c.translate(-w / 2, -h / 2)
    while y < h * 1.15:
        size = math.exp(pen.between(math.log(7), math.log(60)))
        y += size * 1.12
        words, face = pen.foreign(2, 12) if pen.chance(0.25) else (pen.words(2, 14), pen.one(FONTS + FIXED))
        x, bold, colour = pen.between(-0.1, 0.1) * w, pen.chance(0.4), pen.one(p.accents[:3] + [p.ink] * 3)
        if size > 22 and pen.chance(0.35):
            pen.font(face, size, bold)
            pen.c.move_to(x, y)
            pen.c.text_path(words)
            pen.fill(pen.one([colour, p.paper]), keep=True)
            pen.stroke(pen.one([p.ink, p.accents[4]]), pen.between(0.7, 3))
        else:
            if size < 20 and pen.chance(0.2):
                pen.c.rectangle(-w, y - size, w * 3, size * 1.3)
                pen.fill(colour)
                colour = p.paper
            pen.text(x, y, words, size, colour, face, bold, pen.chance(0.15))


SCENES = (article, code, table, cards, poster, poster)
