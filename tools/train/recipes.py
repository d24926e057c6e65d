"""What each network learns: its shape, where it starts from, and how its training pictures are degraded."""
from dataclasses import dataclass, field, replace

# Conditions in the order of the network's input. Each is 0 where the degradation is absent.
RESTORE_CONDITIONS = ("noise / 75", "chroma noise / 30", "blur spread / 4", "(100 - JPEG quality) / 90")
ENLARGE_CONDITIONS = ("noise / 50", "blur spread / 2", "(100 - JPEG quality) / 90")


@dataclass(frozen=True)
class Mix:
    """Chances of each degradation and the ranges they are drawn from; noise in 8-bit levels."""

    noise: float = 0.9
    noise_range: tuple = (0, 75)
    camera: float = 0.25
    correlated: float = 0.1
    chroma: float = 0.2
    chroma_range: tuple = (0, 30)
    sensor: float = 0.0
    blur: float = 0.3
    gaussian: tuple = (0.3, 2.0)
    disc: tuple = (1.0, 4.0)
    line: tuple = (3.0, 8.0)
    kinds: tuple = ("gaussian", "gaussian", "disc")
    jpeg: float = 0.2
    jpeg_range: tuple = (10, 95)


@dataclass(frozen=True)
class Recipe:
    name: str
    start: str = ""
    channels: int = 48
    blocks: int = 4
    groups: int = 1
    scale: int = 1
    side: int = 112
    batch: int = 16
    steps: int = 20000
    rate: float = 1e-3
    sources: tuple = (("photographs", 1.0),)
    mix: Mix = field(default_factory=Mix)

    @property
    def conditions(self):
        return RESTORE_CONDITIONS if self.scale == 1 else ENLARGE_CONDITIONS


_slight = Mix(noise=0.5, noise_range=(0, 10), camera=0.3, correlated=0.1, chroma=0.1, chroma_range=(0, 8), blur=0.9, jpeg=0.1)
_plain = Mix(noise=0.25, noise_range=(0, 12), camera=0.2, chroma=0, blur=0.2, gaussian=(0.3, 1.2), kinds=("gaussian",), jpeg=0.15,
             jpeg_range=(30, 95))
_fine = replace(_plain, noise=0.1, blur=0.1, jpeg=0.07)
_poor = replace(_plain, noise=0.7, noise_range=(0, 25), camera=0.4, blur=0.4, jpeg=0.8, jpeg_range=(10, 80))
_screen = replace(_plain, camera=0, jpeg=0.3)
_sensor = Mix(noise=0.97, noise_range=(0, 50), sensor=0.9, camera=0.5, chroma=0.15, chroma_range=(0, 20), blur=0.2, gaussian=(0.3, 1.2),
              kinds=("gaussian",), jpeg=0)
_drawn = (("drawings", 0.85), ("photographs", 0.15))
_both = (("photographs", 0.92), ("drawings", 0.08))

RECIPES = {
    recipe.name: recipe
    for recipe in (
        Recipe("restore"),
        Recipe("denoise-normal", start="restore", steps=12000, rate=6e-4,
               mix=Mix(noise=0.97, noise_range=(0, 60), camera=0.2, chroma=0.1, blur=0.1, gaussian=(0.3, 1.0), kinds=("gaussian",),
                       jpeg=0.07, jpeg_range=(40, 95))),
        Recipe("denoise-strong", channels=80, blocks=6, steps=60000,
               mix=Mix(noise=1, noise_range=(0, 75), camera=0.25, chroma=0.15, blur=0.07, gaussian=(0.3, 1.2), jpeg=0.07)),
        Recipe("denoise-extreme", start="denoise-strong", channels=160, blocks=6, groups=2, batch=8, steps=2500, rate=5e-5,
               mix=Mix(noise=1, noise_range=(0, 100), camera=0.25, chroma=0.25, blur=0.07, gaussian=(0.3, 1.2), jpeg=0.07)),
        Recipe("raw-native", start="denoise-normal", steps=6000, rate=4e-4, mix=_sensor),
        Recipe("raw-standard", start="denoise-strong", channels=80, blocks=6, steps=20000, rate=6e-4,
               mix=replace(_sensor, noise=1, noise_range=(0, 90))),
        Recipe("raw-linear", start="denoise-normal", steps=6000, rate=4e-4,
               mix=replace(_sensor, sensor=0.3, correlated=0.5, camera=0.7)),
        Recipe("sharpen-standard", start="restore", steps=6000, rate=5e-4,
               mix=replace(_slight, gaussian=(0.4, 2.0), kinds=("gaussian",))),
        Recipe("sharpen-strong", start="sharpen-standard", steps=3000, rate=3e-4,
               mix=replace(_slight, gaussian=(0.8, 3.2), disc=(1.5, 5.0), kinds=("gaussian", "gaussian", "disc"))),
        Recipe("sharpen-lens", start="sharpen-standard", steps=4000, rate=4e-4,
               mix=replace(_slight, noise_range=(0, 6), disc=(1.5, 8.0), kinds=("disc",))),
        Recipe("sharpen-motion", channels=64, blocks=7, steps=20000,
               mix=replace(_slight, noise_range=(0, 6), line=(2.0, 9.0), kinds=("line",))),
        Recipe("enlarge-2x", scale=2, channels=64, side=128, steps=20000, sources=_both, mix=_plain),
        Recipe("enlarge-2x-crisp", start="enlarge-2x", scale=2, channels=64, side=128, steps=5000, rate=4e-4, sources=_both, mix=_fine),
        Recipe("enlarge-2x-fine", scale=2, channels=96, blocks=7, side=128, steps=60000, sources=_both, mix=_fine),
        Recipe("enlarge-2x-worn", start="enlarge-2x", scale=2, channels=64, side=128, steps=5000, rate=4e-4, mix=_poor),
        Recipe("enlarge-2x-graphics", start="enlarge-2x-fine", scale=2, channels=96, blocks=7, side=128, steps=5000, rate=4e-4,
               sources=_drawn, mix=_screen),
        Recipe("enlarge-4x", start="enlarge-2x", scale=4, channels=64, side=128, steps=8000, rate=6e-4, sources=_both, mix=_plain),
        Recipe("enlarge-4x-crisp", start="enlarge-4x", scale=4, channels=64, side=192, steps=5000, rate=4e-4, sources=_both, mix=_fine),
        Recipe("enlarge-4x-worn", start="enlarge-4x", scale=4, channels=64, side=192, steps=5000, rate=4e-4, mix=_poor),
        Recipe("enlarge-4x-fine", scale=4, channels=96, blocks=7, side=192, steps=60000, sources=_both, mix=_fine),
        Recipe("enlarge-4x-graphics", start="enlarge-4x-fine", scale=4, channels=96, blocks=7, side=192, steps=5000, rate=4e-4,
               sources=_drawn, mix=_screen),
    )
}
