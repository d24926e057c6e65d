"""Scenes of comics: faces with brushed lines, hatching and dots."""
import math

from drawings_palette import mixed


def hatch(pen, colour, x, y, w, h, gap, width):
    turn = pen.between(0, math.pi)
    dx, dy, reach = math.cos(turn), math.sin(turn), w + h
    for i in range(-int(reach / gap), int(reach / gap)):
        cx, cy = x + w / 2 - dy * i * gap, y + h / 2 + dx * i * gap
        pen.line((cx - dx * reach, cy - dy * reach), (cx + dx * reach, cy + dy * reach))
    pen.stroke(colour, width)


def dots(pen, colour, x, y, w, h, step):
    for j in range(int(h / step) + 2):
        for i in range(int(w / step) + 2):
            pen.disc(x + (i + j % 2 / 2) * step, y + j * step * 0.87, step * (0.12 + 0.35 * j * step / h))
    pen.fill(colour)


def backdrop(pen, p, x, y, w, h):
    kind = pen.whole(0, 4)
    pen.gradient(x, y, w, h, pen.one(p.accents), pen.one(p.accents + [p.paper]))
    pen.c.paint()
    if kind == 0:
        dots(pen, p.paper, x, y, w, h, pen.between(4, 10))
    elif kind == 1:
        for i in range(pen.whole(20, 60)):
            t, near = pen.between(0, math.tau), pen.between(0.3, 0.6) * w
            for s, q in ((-0.02, w), (0.02, w), (0, near)):
                pen.c.line_to(x + w / 2 + math.cos(t + s) * q, y + h / 2 + math.sin(t + s) * q)
            pen.c.close_path()
        pen.fill(p.ink)
    elif kind == 2:
        hatch(pen, p.ink, x, y, w, h, pen.between(3, 9), pen.between(0.4, 1.4))


def tapered(pen, colour, x, y, turn, length, width):
    """A brush stroke that starts thick and ends in a point."""
    bend = pen.between(-0.6, 0.6)
    ex, ey = x + math.cos(turn) * length, y + math.sin(turn) * length
    mx, my = (x + ex) / 2 - (ey - y) * bend, (y + ey) / 2 + (ex - x) * bend
    nx, ny = -math.sin(turn) * width, math.cos(turn) * width
    pen.c.move_to(x - nx, y - ny)
    pen.c.curve_to(mx - nx, my - ny, mx - nx, my - ny, ex, ey)
    pen.c.curve_to(mx + nx, my + ny, mx + nx, my + ny, x + nx, y + ny)
    pen.c.close_path()
    pen.fill(colour)


def face(pen, p, x, y, r, ink, width):
    skin, hair = mixed(pen.one(p.accents), (1, 0.85, 0.7), pen.between(0.3, 0.95)), pen.one(p.accents)
    pen.blob(x, y - r * 0.1, r * 1.3, 0.2, pen.whole(7, 14))
    pen.fill(hair, keep=True)
    pen.stroke(ink, width)
    shoulders = ((-1.5, 2.4), (-0.9, 1.2), (0, 1), (0.9, 1.2), (1.5, 2.4))
    pen.curve([(x + dx * r, y + dy * r) for dx, dy in shoulders])
    pen.fill(pen.one(p.accents), keep=True)
    pen.stroke(ink, width)
    jaw = pen.between(0.75, 1.1)
    pen.curve([(x - r * 0.9, y - r * 0.3), (x, y - r), (x + r * 0.9, y - r * 0.3), (x + r * 0.6, y + r * 0.6),
               (x, y + r * jaw), (x - r * 0.6, y + r * 0.6)], True)
    pen.fill(skin, keep=True)
    pen.c.save()
    pen.c.clip_preserve()
    pen.stroke(ink, width * 2)
    pen.blob(x + r * 0.8, y + r * 0.4, r * 0.8, 0.1)
    if pen.chance(0.6):
        pen.fill(mixed(skin, ink, 0.25))
    else:
        pen.c.clip()
        hatch(pen, ink, x, y, r, r, max(2.5, r / 10), max(0.5, width / 2))
    pen.c.restore()
    size, iris, look = r * pen.between(0.16, 0.3), pen.one(p.accents), pen.between(-0.3, 0.3)
    for side in (-1, 1):
        ex, ey = x + side * r * 0.4, y + r * 0.05
        pen.c.save()
        pen.c.translate(ex, ey)
        pen.c.scale(0.8, pen.between(0.9, 1.3))
        pen.disc(0, 0, size)
        pen.c.restore()
        pen.fill((1, 1, 1), keep=True)
        pen.stroke(ink, width * 0.8)
        for q, colour in ((0.65, iris), (0.35, ink)):
            pen.disc(ex + look * size, ey, size * q)
            pen.fill(colour)
        pen.disc(ex + look * size - size * 0.2, ey - size * 0.3, size * 0.2)
        pen.fill((1, 1, 1))
        pen.curve([(ex - size, ey - size * 1.5), (ex, ey - size * pen.between(1.6, 2.3)), (ex + size, ey - size * 1.5)])
        pen.stroke(ink, width * 1.3)
    pen.curve([(x - r * 0.25, y + r * 0.55), (x, y + r * pen.between(0.45, 0.75)), (x + r * 0.25, y + r * 0.55)])
    pen.stroke(ink, width)
    tapered(pen, ink, x, y + r * 0.15, 1.3, r * 0.25, width * 0.6)
    for _ in range(pen.whole(4, 14)):
        t = pen.between(-2.8, -0.3)
        pen.c.new_path()
        sx, sy = x + math.cos(t) * r * 1.2, y + math.sin(t) * r * 1.2
        strand = pen.one([hair, ink, mixed(hair, (1, 1, 1), 0.4)])
        tapered(pen, strand, sx, sy, pen.between(0.9, 2.3), r * pen.between(0.4, 1), r * pen.between(0.02, 0.1))


def balloon(pen, p, x, y, w, ink, width):
    size = pen.between(7, 13)
    count = pen.whole(1, 4)
    h = size * (count + 1) * 1.25
    pen.box(x, y, w, h, pen.one([3, h / 2, 12]))
    pen.c.move_to(x + w * 0.3, y + h - 1)
    pen.c.line_to(x + w * 0.25, y + h + 12)
    pen.c.line_to(x + w * 0.45, y + h - 1)
    pen.stroke(ink, width * 2)
    pen.box(x, y, w, h, pen.one([3, h / 2, 12]))
    pen.c.move_to(x + w * 0.3, y + h - 1)
    pen.c.line_to(x + w * 0.25, y + h + 12)
    pen.c.line_to(x + w * 0.45, y + h - 1)
    pen.fill((1, 1, 1))
    for i in range(count):
        line = y + size * (1.5 + i * 1.2)
        pen.text(x + w / 2, line, pen.words(3).upper(), size, (0, 0, 0), "Comic Neue", True, anchor=0.5, room=w - 10)


def comic(pen, p, w, h):
    ink, width = pen.one([(0, 0, 0), (0.05, 0.02, 0.1), p.accents[5]]), pen.between(0.8, 3.5)
    if pen.chance(0.25):
        p.accents, p.paper, ink = [(v, v, v) for v in (1, 1, 0.8, 0, 1, 0.55)], (1, 1, 1), (0, 0, 0)
    across, down, gutter = pen.whole(1, 2), pen.whole(1, 2), pen.between(2, 8)
    for row in range(down):
        for column in range(across):
            x, y = column * w / across + gutter / 2, row * h / down + gutter / 2
            ww, hh = w / across - gutter, h / down - gutter
            pen.c.save()
            pen.c.rectangle(x, y, ww, hh)
            pen.c.clip()
            backdrop(pen, p, x, y, ww, hh)
            for _ in range(pen.whole(1, 3)):
                fx, fy = x + pen.between(0.2, 0.8) * ww, y + pen.between(0.4, 0.7) * hh
                face(pen, p, fx, fy, pen.between(0.15, 0.4) * min(ww, hh), ink, width)
            if pen.chance(0.7):
                balloon(pen, p, x + pen.between(0.02, 0.3) * ww, y + 4, ww * pen.between(0.4, 0.65), ink, width)
            if pen.chance(0.3):
                size = pen.between(0.15, 0.3) * hh
                pen.font("Comic Neue", size, True)
                pen.c.move_to(x + 4, y + hh - 6)
                pen.c.text_path(pen.words(1).upper() + "!")
                pen.fill(p.accents[3], keep=True)
                pen.stroke(ink, width)
            pen.c.restore()
            pen.c.rectangle(x, y, ww, hh)
            pen.stroke(ink, width * 1.3)


SCENES = (comic, comic)
