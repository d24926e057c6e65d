"""What drawings choose from: fonts, words, letters and random palettes."""
import colorsys

FONTS = ("Inter", "Inter", "Inter Thin", "Inter Light", "Inter Medium", "Inter SemiBold", "Inter Black",
         "Inter Display", "DejaVu Sans", "DejaVu Sans Condensed", "DejaVu Serif", "DejaVu Serif Condensed",
         "Liberation Sans", "Liberation Sans", "Liberation Serif", "Comic Neue", "Klee One")
FIXED = ("DejaVu Sans Mono", "Liberation Mono", "JetBrains Mono", "JetBrains Mono Light", "JetBrains Mono ExtraBold")
WORDS = """
about amber angle apple arrow basket beach bell blue border bridge bright button cancel candle cell center channel
circle clear close cloud colour column copy corner count curve dark day depth detail draft edge edit export family
field file filter final flat folder forest frame garden glass grid group harbour height help hidden hill image index
inner invert island item join kettle label ladder lake layer leaf level light line list lock map margin mask meadow
menu merge middle mirror mode moon morning move narrow never new night none north number ocean open orange order outer
output page paint panel paper path pattern pixel place plain point print quick radius rain range reset right river
roof round ruler save scale search select shade shape sharp shift side size sky small smooth source square star start
stone storm street style sum table tower tree type under unit update upper valley value view water wave wide width
window winter word yellow zero zoom
""".split()
ALPHABETS = ((range(0x3B1, 0x3CA), "DejaVu Sans"), (range(0x430, 0x450), "Liberation Serif"),
             (range(0x430, 0x450), "DejaVu Sans"), (range(0x561, 0x587), "DejaVu Sans"),
             (range(0x10D0, 0x10F1), "DejaVu Sans"), (range(0x5D0, 0x5EB), "DejaVu Sans"),
             (range(0x3042, 0x3094), "Klee One"), (range(0x30A2, 0x30F4), "Klee One"),
             (tuple(map(ord, "山川田日月火水木金土石花草空雨雪風林森海島道門車町村東西南北春夏秋冬朝夜赤青白黒")), "Klee One"))


def hsv(hue, saturation, value):
    return colorsys.hsv_to_rgb(hue % 1, min(max(saturation, 0), 1), min(max(value, 0), 1))


def mixed(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


class Palette:
    """Paper, panel and ink far enough apart to read, and accents that belong together."""

    def __init__(self, random):
        kind = random.choice(["light", "dark", "flat", "pastel", "neon", "mono", "print", "vivid"],
                             p=[0.2, 0.18, 0.16, 0.12, 0.1, 0.08, 0.08, 0.08])
        hue, spread = random.random(), random.choice([0.06, 0.13, 0.33, 0.5, 0.21])
        tone = {
            "light": (0.75, 0.8),
            "dark": (0.6, 0.9),
            "flat": (0.65, 0.85),
            "pastel": (0.35, 0.9),
            "neon": (0.95, 1),
            "mono": (0, 0.5),
            "print": (0.6, 0.65),
            "vivid": (1, 0.95),
        }[kind]
        self.accents = [hsv(hue + i * spread, tone[0] * random.uniform(0.7, 1.1), tone[1] * random.uniform(0.65, 1.1))
                        for i in range(6)]
        if kind == "mono":
            self.accents = [(v, v, v) for v in random.permutation([0.0, 0.2, 0.4, 0.6, 0.8, 1.0])]
        dark = kind in ("dark", "neon") or kind in ("mono", "flat") and random.random() < 0.3
        tint, warm = random.uniform(0, 0.25 if dark else 0.05), random.random()
        if dark:
            low = random.uniform(0, 0.16)
            self.paper, self.ink = hsv(warm, tint, low), hsv(warm, tint / 4, random.uniform(0.75, 1))
            self.panel, self.rule = hsv(warm, tint, low + 0.08), hsv(warm, tint, low + 0.22)
        else:
            if kind in ("pastel", "vivid"):
                tint = random.uniform(0.05, 0.3)
            if kind == "print":
                tint, warm = random.uniform(0.05, 0.2), random.uniform(0.08, 0.15)
            self.paper, self.ink = hsv(warm, tint, random.uniform(0.92, 1)), hsv(warm, tint, random.uniform(0, 0.25))
            self.panel, self.rule = mixed(self.paper, self.ink, 0.05), mixed(self.paper, self.ink, 0.22)
        if random.random() < 0.15:
            self.paper, self.panel = self.panel, self.paper
        self.faint = mixed(self.ink, self.paper, random.uniform(0.3, 0.55))
        self.dark = dark
