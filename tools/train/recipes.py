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
    scale: int = 1
    side: int = 112
    batch: int = 16
    steps: int = 20000
    rate: float = 1e-3
    mix: Mix = field(default_factory=Mix)

    @property
    def conditions(self):
        return RESTORE_CONDITIONS if self.scale == 1 else ENLARGE_CONDITIONS


_slight = Mix(noise=0.5, noise_range=(0, 10), camera=0.3, correlated=0.1, chroma=0.1, chroma_range=(0, 8), blur=0.9, jpeg=0.1)
_plain = Mix(noise=0.25, noise_range=(0, 12), camera=0.2, chroma=0, blur=0.2, gaussian=(0.3, 1.2), kinds=("gaussian",), jpeg=0.15,
             jpeg_range=(30, 95))

RECIPES = {
    recipe.name: recipe
    for recipe in (
        Recipe("restore"),
        Recipe("denoise-normal", start="restore", steps=12000, rate=6e-4,
               mix=Mix(noise=0.97, noise_range=(0, 60), camera=0.2, chroma=0.1, blur=0.1, gaussian=(0.3, 1.0), kinds=("gaussian",),
                       jpeg=0.1, jpeg_range=(40, 95))),
        Recipe("denoise-strong", start="denoise-normal", steps=5000, rate=4e-4,
               mix=Mix(noise=1, noise_range=(10, 75), camera=0.3, chroma=0.2, blur=0.1, gaussian=(0.3, 1.2), jpeg=0.1)),
        Recipe("denoise-extreme", start="denoise-normal", steps=5000, rate=4e-4,
               mix=Mix(noise=1, noise_range=(10, 100), camera=0.4, correlated=0.25, chroma=0.6, blur=0.1, gaussian=(0.3, 1.2), jpeg=0.1)),
        Recipe("sharpen-standard", start="restore", steps=6000, rate=5e-4,
               mix=replace(_slight, gaussian=(0.4, 2.0), kinds=("gaussian",))),
        Recipe("sharpen-strong", start="sharpen-standard", steps=3000, rate=3e-4,
               mix=replace(_slight, gaussian=(0.8, 3.2), disc=(1.5, 5.0), kinds=("gaussian", "gaussian", "disc"))),
        Recipe("sharpen-lens", start="sharpen-standard", steps=4000, rate=4e-4,
               mix=replace(_slight, noise_range=(0, 6), disc=(1.5, 8.0), kinds=("disc",))),
        Recipe("sharpen-motion", start="sharpen-standard", steps=4000, rate=4e-4,
               mix=replace(_slight, noise_range=(0, 6), line=(2.0, 9.0), kinds=("line",))),
        Recipe("enlarge-2x", scale=2, channels=64, side=128, steps=20000, mix=_plain),
        Recipe("enlarge-2x-crisp", start="enlarge-2x", scale=2, channels=64, side=128, steps=5000, rate=4e-4,
               mix=replace(_plain, noise=0.05, blur=0.05, jpeg=0.05)),
        Recipe("enlarge-2x-worn", start="enlarge-2x", scale=2, channels=64, side=128, steps=5000, rate=4e-4,
               mix=replace(_plain, noise=0.7, noise_range=(0, 25), camera=0.4, blur=0.4, jpeg=0.8, jpeg_range=(10, 80))),
        Recipe("enlarge-4x", start="enlarge-2x", scale=4, channels=64, side=128, steps=8000, rate=6e-4, mix=_plain),
    )
}
