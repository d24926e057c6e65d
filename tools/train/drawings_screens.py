"""Scenes of interfaces: windows, forms and menus."""
from drawings_palette import mixed
from drawings_type import article, cards, code, table


def button(pen, p, x, y, w, h, radius, loud=False):
    pen.box(x + 0.5, y + 0.5, w - 1, h - 1, radius)
    if pen.chance(0.25):
        pen.gradient(x, y, w, h, mixed(p.accents[0], (1, 1, 1), 0.25), p.accents[0])
        pen.c.fill_preserve()
    else:
        pen.fill(p.accents[0] if loud else p.panel, keep=True)
    pen.stroke(p.accents[0] if loud else p.rule, 1)
    ink = ((1, 1, 1) if sum(p.accents[0]) < 1.9 else (0, 0, 0)) if loud else p.ink
    pen.text(x + w / 2, y + h / 2 + h * 0.16, pen.words(1), h * 0.46, ink, anchor=0.5, room=w - 4)


def control(pen, p, x, y, w, size):
    kind, accent, mid = pen.whole(0, 6), p.accents[0], y - size * 0.35
    if kind == 0:
        pen.box(x, mid - 1.5, w, 3, 1.5)
        pen.fill(p.rule)
        part = pen.between(0.1, 0.9) * w
        pen.box(x, mid - 1.5, part, 3, 1.5)
        pen.fill(accent)
        pen.disc(x + part, mid, size * 0.5)
        pen.fill(p.paper, keep=True)
        pen.stroke(accent, pen.between(1, 2.5))
    elif kind == 1:
        on = pen.chance(0.5)
        pen.box(x, mid - size * 0.6, size * 2.2, size * 1.2, size)
        pen.fill(accent if on else p.rule)
        pen.disc(x + size * (1.6 if on else 0.6), mid, size * 0.45)
        pen.fill((1, 1, 1))
    elif kind in (2, 3):
        pen.box(x + 0.5, mid - size * 0.85, w, size * 1.7, pen.one([0, 2, 5]))
        pen.fill(mixed(p.paper, p.panel, 0.5), keep=True)
        pen.stroke(p.rule if kind == 2 else accent, 1)
        words, ink = (pen.words(1, 2), p.faint) if kind == 2 else (pen.number(), p.ink)
        pen.text(x + 5, y, words, size, ink, room=w - 18)
        pen.line((x + w - 11, mid - 1.5), (x + w - 8, mid + 1.5), (x + w - 5, mid - 1.5))
        pen.stroke(p.ink, 1.2)
    elif kind == 4:
        pen.box(x + 0.5, mid - size * 0.5, size, size, pen.one([0, 2, size]))
        pen.fill(accent, keep=True)
        pen.stroke(p.ink, 0.8)
        pen.line((x + size * 0.2, mid), (x + size * 0.45, mid + size * 0.25), (x + size * 0.85, mid - size * 0.3))
        pen.stroke((1, 1, 1), 1.4)
        pen.text(x + size * 1.6, y, pen.words(1, 2), size, p.ink, room=w - size * 1.6)
    elif kind == 5:
        button(pen, p, x, mid - size * 0.9, w, size * 1.8, pen.one([0, 3, 9]), True)
    else:
        for i, colour in enumerate(p.accents):
            pen.box(x + i * size * 1.2, mid - size / 2, size, size, pen.one([0, 2, 9]))
            pen.fill(colour, keep=i == 2)
            if i == 2:
                pen.stroke(p.ink, 1.5)


def form(pen, p, w, h):
    size = pen.between(8, 14)
    y, split, step = size * 2, pen.between(0.3, 0.5) * w, size * pen.between(1.9, 2.5)
    x = pen.between(4, 14)
    while y < h + size:
        if pen.chance(0.12):
            pen.text(x, y, pen.words(1, 3), size * 1.3, p.ink, bold=True)
            pen.line((x, round(y + 5) + 0.5), (w - x, round(y + 5) + 0.5))
            pen.stroke(p.rule)
        else:
            pen.text(x, y, pen.words(1, 3), size, p.ink, room=split - x - 4)
            for part in range(1 if w < 220 else 2):
                room = (w - split - x) / (1 if w < 220 else 2)
                control(pen, p, split + part * room, y, room - 10, size)
        y += step


def rows(pen, p, x, y, w, h, size, icons):
    picked, line = pen.whole(0, 6), size * pen.between(1.55, 2.1)
    for i in range(int(h / line) + 1):
        top = y + i * line
        if i == picked:
            pen.box(x + 2, top, w - 4, line, pen.one([0, 3, 6]))
            pen.fill(p.accents[0])
        ink = p.paper if i == picked else p.ink if pen.chance(0.8) else p.faint
        if icons:
            pen.icon(x + 5, top + line / 2 - size * 0.55, size * 1.1, ink)
        left, base = x + (9 + size if icons else 6), top + line * 0.5 + size * 0.35
        pen.text(left, base, pen.words(1, 3), size, ink, room=w - 24 - size)


def window(pen, p, w, h):
    pen.gradient(0, 0, w, h, *p.accents[:3])
    pen.c.paint()
    x, y = pen.whole(-12, 10), pen.whole(-8, 10)
    ww, hh = w - x + pen.whole(-12, 20), h - y + pen.whole(-10, 16)
    size, radius = pen.between(8, 13), pen.one([0, 4, 9])
    pen.shadow(x, y, ww, hh, radius)
    pen.box(x, y, ww, hh, radius)
    pen.fill(p.paper)
    bar, side = round(size * 2.3), pen.one([0, 0.28, 0.4]) * ww
    pen.box(x, y, ww, bar, radius)
    pen.fill(p.panel)
    for i in range(3):
        if radius:
            pen.disc(x + 10 + i * 13, y + bar / 2, 4)
            pen.fill(p.accents[i])
        else:
            pen.icon(x + ww - 16 - i * 18, y + bar / 2 - 5, 10, p.ink)
    pen.text(x + ww / 2, y + bar / 2 + size * 0.35, pen.words(1, 3), size, p.ink, anchor=0.5, bold=pen.chance(0.5))
    top = y + bar
    for i in range(int(ww / (size * 2))):
        if pen.chance(0.8):
            pen.icon(x + 6 + i * size * 2, top + 5, size * 1.25, p.ink if pen.chance(0.8) else p.accents[1])
    top += round(size * 2)
    pen.line((x, top + 0.5), (x + ww, top + 0.5))
    pen.stroke(p.rule)
    if side:
        pen.c.rectangle(x, top + 1, side, hh)
        pen.fill(p.panel)
        rows(pen, p, x, top + 4, side, y + hh - top, size, pen.chance(0.6))
    pen.c.save()
    pen.c.rectangle(x + side, top + 1, ww - side, y + hh - top - 1)
    pen.c.clip()
    pen.c.translate(x + side, top)
    pen.one([form, table, article, cards, form])(pen, p, ww - side, y + hh - top)
    pen.c.restore()


def menu(pen, p, w, h):
    pen.one([article, table, cards, code])(pen, p, w, h)
    for _ in range(pen.whole(1, 2)):
        size = pen.between(9, 14)
        ww, hh = pen.between(0.4, 0.7) * w, pen.between(0.5, 0.9) * h
        x, y = round(pen.between(0, w - ww)), round(pen.between(0, h - hh))
        pen.shadow(x, y, ww, hh, 4)
        pen.box(x + 0.5, y + 0.5, round(ww), round(hh), pen.one([0, 4, 8]))
        pen.fill(p.panel, keep=True)
        pen.stroke(p.rule, 1)
        rows(pen, p, x, y + 4, ww, hh - size * 3, size, pen.chance(0.7))


SCENES = (window, form, menu, window)
