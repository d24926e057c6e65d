"""The pen that drawings are made with: type, icons and shapes over one cairo surface."""
import json
import math
import pathlib

import cairo
import numpy
from PIL import Image, ImageDraw, ImageFont

from drawings_palette import ALPHABETS, FONTS, WORDS

ICONS = pathlib.Path(__file__).resolve().parents[2] / "node_modules/lucide-static/font"


class Pen:
    def __init__(self, random, side):
        self.random, self.surface = random, cairo.ImageSurface(cairo.FORMAT_RGB24, side, side)
        self.c = cairo.Context(self.surface)
        options = cairo.FontOptions()
        options.set_hint_style(random.choice([cairo.HINT_STYLE_NONE, cairo.HINT_STYLE_SLIGHT, cairo.HINT_STYLE_FULL],
                                             p=[0.6, 0.25, 0.15]))
        options.set_hint_metrics(cairo.HINT_METRICS_OFF)
        options.set_antialias(cairo.ANTIALIAS_SUBPIXEL if random.random() < 0.06 else cairo.ANTIALIAS_GRAY)
        if random.random() < 0.07:  # pixel-exact, as old interfaces draw
            options.set_antialias(cairo.ANTIALIAS_NONE if random.random() < 0.5 else cairo.ANTIALIAS_GRAY)
            self.c.set_antialias(cairo.ANTIALIAS_NONE)
        self.c.set_font_options(options)
        self.codes = list(json.loads((ICONS / "codepoints.json").read_text()).values())
        self.interface = str(random.choice(FONTS[:2] * 3 + FONTS))

    def pixels(self):
        self.surface.flush()
        side = self.surface.get_width()
        data = numpy.frombuffer(self.surface.get_data(), numpy.uint8).reshape(side, self.surface.get_stride())
        return data[:, : side * 4].reshape(side, side, 4)[..., 2::-1].copy()

    def between(self, low, high):
        return float(self.random.uniform(low, high))

    def whole(self, low, high):
        return int(self.random.integers(low, high + 1))

    def one(self, items):
        return items[int(self.random.integers(len(items)))]

    def chance(self, p):
        return self.random.random() < p

    def words(self, low, high=None):
        text = " ".join(self.one(WORDS) for _ in range(self.whole(low, high or low)))
        return text.capitalize() if self.chance(0.6) else text.upper() if self.chance(0.15) else text

    def number(self):
        return self.one([f"{self.whole(0, 999)}", f"{self.between(0, 100):.1f}", f"{self.whole(0, 100)} %",
                         f"{self.whole(1, 28)}.{self.whole(1, 12)}.20{self.whole(10, 29)}", f"{self.between(0, 9):.3f}",
                         f"#{self.whole(0, 0xFFFFFF):06x}", f"{self.whole(0, 23):02d}:{self.whole(0, 59):02d}"])

    def foreign(self, low, high):
        letters, font = self.one(ALPHABETS)
        made = ("".join(chr(self.one(letters)) for _ in range(self.whole(2, 8))) for _ in range(self.whole(low, high)))
        return " ".join(made), font

    def fill(self, colour, alpha=1.0, keep=False):
        self.c.set_source_rgba(*colour, alpha)
        self.c.fill_preserve() if keep else self.c.fill()

    def stroke(self, colour, width=1.0, alpha=1.0, dash=None):
        self.c.set_source_rgba(*colour, alpha)
        self.c.set_line_width(width)
        self.c.set_dash(dash or [])
        self.c.stroke()

    def box(self, x, y, w, h, radius=0.0):
        radius, c = min(radius, w / 2, h / 2), self.c
        if radius <= 0:
            return c.rectangle(x, y, w, h)
        c.new_sub_path()
        for i, (cx, cy) in enumerate(((x + w - radius, y + h - radius), (x + radius, y + h - radius),
                                      (x + radius, y + radius), (x + w - radius, y + radius))):
            c.arc(cx, cy, radius, i * math.pi / 2, (i + 1) * math.pi / 2)
        c.close_path()

    def disc(self, x, y, r):
        self.c.new_sub_path()
        self.c.arc(x, y, max(r, 0.1), 0, math.tau)

    def line(self, *points):
        self.c.new_sub_path()
        for x, y in points:
            self.c.line_to(x, y)

    def curve(self, points, closed=False):
        """A smooth curve through the points, with the tangents of its neighbours."""
        n = len(points)
        at = (lambda i: points[i % n]) if closed else (lambda i: points[min(max(i, 0), n - 1)])
        self.c.move_to(*points[0])
        for i in range(n if closed else n - 1):
            (ax, ay), (bx, by), (cx, cy), (dx, dy) = at(i - 1), at(i), at(i + 1), at(i + 2)
            self.c.curve_to(bx + (cx - ax) / 6, by + (cy - ay) / 6, cx - (dx - bx) / 6, cy - (dy - by) / 6, cx, cy)

    def blob(self, x, y, r, rough=0.25, corners=8):
        turn = self.between(0, 6)
        radii = [(turn + i * math.tau / corners, r * self.between(1 - rough, 1 + rough)) for i in range(corners)]
        self.curve([(x + math.cos(t) * q, y + math.sin(t) * q) for t, q in radii], True)

    def gradient(self, x, y, w, h, *colours):
        t = self.between(0, math.tau)
        cx, cy, dx, dy = x + w / 2, y + h / 2, math.cos(t) * w / 2, math.sin(t) * h / 2
        made = cairo.LinearGradient(cx - dx, cy - dy, cx + dx, cy + dy) if self.chance(0.65) else cairo.RadialGradient(
            cx + dx / 2, cy + dy / 2, 0, cx, cy, max(w, h) * 0.75)
        for i, colour in enumerate(colours):
            made.add_color_stop_rgb(i / max(len(colours) - 1, 1), *colour)
        self.c.set_source(made)

    def shadow(self, x, y, w, h, radius=6, depth=8, alpha=0.25):
        for i in range(depth):
            self.box(x - depth / 2 + i / 2, y + i / 2, w + depth - i, h + depth - i, radius + depth - i)
            self.fill((0, 0, 0), alpha * 2 / depth * (i + 1) / depth)

    def font(self, family, size, bold=False, italic=False):
        self.c.select_font_face(family, int(italic), int(bold))
        self.c.set_font_size(size)

    def text(self, x, y, words, size, colour, family=None, bold=False, italic=False, anchor=0.0, room=None):
        self.font(family or self.interface, size, bold, italic)
        advance = self.c.text_extents(words).x_advance
        while room and advance > room and len(words) > 1:
            words = words[: max(1, int(len(words) * room / advance))]
            advance = min(room, self.c.text_extents(words).x_advance)
        self.c.move_to(x - advance * anchor, y)
        self.c.set_source_rgb(*colour)
        self.c.show_text(words)
        self.c.new_path()
        return advance

    def icon(self, x, y, size, colour):
        """One icon of the icon font; through a mask, as cairo knows only installed fonts."""
        scale = self.scale()
        pixels = max(4, round(size * scale))
        x, y = self.c.device_to_user(*map(round, self.c.user_to_device(x, y)))  # else the mask would blur
        mask = Image.new("L", (pixels + 3 & ~3, pixels))
        type_ = ImageFont.truetype(str(ICONS / "lucide.ttf"), pixels)
        ImageDraw.Draw(mask).text((0, 0), chr(self.one(self.codes)), 255, type_)
        cover = cairo.ImageSurface.create_for_data(bytearray(mask.tobytes()), cairo.FORMAT_A8, *mask.size)
        self.c.save()
        self.c.translate(x, y)
        self.c.scale(1 / scale, 1 / scale)
        self.c.set_source_rgb(*colour)
        self.c.mask_surface(cover, 0, 0)
        self.c.restore()

    def scale(self):
        return self.c.get_matrix().xx

    def paint(self, pixels, cell=1):
        """Lays an array of bytes (height, width, 3) down, each cell x cell pixels large however far zoomed."""
        rows, columns = pixels.shape[:2]
        data = numpy.zeros((rows, columns, 4), numpy.uint8)
        data[..., 2::-1] = pixels
        self.c.save()
        self.c.scale(cell / self.scale(), cell / self.scale())
        picture = cairo.ImageSurface.create_for_data(bytearray(data.tobytes()), cairo.FORMAT_RGB24, columns, rows)
        self.c.set_source_surface(picture)
        self.c.get_source().set_filter(cairo.FILTER_NEAREST)
        self.c.get_source().set_extend(cairo.EXTEND_PAD)
        self.c.rectangle(0, 0, columns, rows)
        self.c.fill()
        self.c.restore()
