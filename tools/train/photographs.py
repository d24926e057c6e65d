"""Photographs of distribution packages: as a pool of patches to learn from, and as squares to validate on."""
import glob
import os
import pathlib
import sys

import numpy
import torch
from PIL import Image

FOLDER = pathlib.Path(__file__).resolve().parent
CACHE = FOLDER.parent.parent / "build" / "train"
PACKED = CACHE / "packed"
PACKED_DRAWINGS = 450
REDUCED = 0.6  # of the original size: removes a photograph's own noise and compression
Image.MAX_IMAGE_PIXELS = None


def files(use):
    """Paths of the photographs listed for "train" or "validate", sorted, none twice."""
    found = {}
    for line in (FOLDER / "photographs.txt").read_text().splitlines():
        if line.startswith(use + " "):
            matches = sorted(glob.glob("/usr/share/" + line.split()[2]))
            if not matches:
                raise SystemExit(f"no photograph matches {line}; run tools/train/setup")
            found.update((os.path.realpath(match), match) for match in reversed(matches))
    return sorted(found.values())


def scaled(path, factor):
    with Image.open(path) as image:
        image = image.convert("RGB")
    size = (round(image.width * factor), round(image.height * factor))
    return numpy.asarray(image if factor == 1 else image.resize(size, Image.Resampling.LANCZOS))


def pack():
    """Writes reduced photographs and drawings as small files, to take along to a machine without the packages."""
    PACKED.mkdir(parents=True, exist_ok=True)
    for index, path in enumerate(files("train")):
        Image.fromarray(scaled(path, REDUCED)).save(PACKED / f"{index:03}.jpg", quality=93, subsampling=0, optimize=True)
    for index, drawing in enumerate(_drawings(288)[:PACKED_DRAWINGS]):
        Image.fromarray(drawing).save(PACKED / f"{index:03}.webp", lossless=True)


def _reduced():
    if any(PACKED.glob("*.jpg")):
        return (scaled(path, 1) for path in sorted(PACKED.glob("*.jpg")))
    return (scaled(path, REDUCED) for path in files("train"))


def _detail(patch):
    """Mean difference of neighbours in green, in 8-bit levels."""
    green = patch[..., 1].astype(numpy.int16)
    return numpy.abs(numpy.diff(green, axis=0)).mean() + numpy.abs(numpy.diff(green, axis=1)).mean()


def _drawings(side):
    packed = sorted(PACKED.glob("*.webp"))
    if packed:
        return numpy.stack([scaled(path, 1) for path in packed])
    import drawings

    return drawings.drawings(700, side)


def _cut(pixels, side, step, threshold):
    for top in range(0, pixels.shape[0] - side + 1, step):
        for left in range(0, pixels.shape[1] - side + 1, step):
            patch = pixels[top : top + side, left : left + side]
            # Sky and blurred backgrounds teach little: few of them are enough.
            if _detail(patch) > threshold or (top + left) // step % 8 == 0:
                yield patch


def _patches(side, limit):
    random = numpy.random.default_rng(1)
    found = []
    for pixels in _reduced():
        for factor in (1.0, 0.75, 0.55):
            size = (round(pixels.shape[1] * factor), round(pixels.shape[0] * factor))
            smaller = numpy.asarray(Image.fromarray(pixels).resize(size, Image.Resampling.LANCZOS))
            cut = list(_cut(smaller, side, side * 2 // 3, 3))
            random.shuffle(cut)
            found.extend(cut[:limit])
    return numpy.stack(found)


def pool(name, side=288, limit=120):
    """Patches to learn from, built once and kept: uint8 (count, 3, side, side), of "photographs" or "drawings"."""
    kept = CACHE / f"{name}-{side}.npy"
    if not kept.exists():
        CACHE.mkdir(parents=True, exist_ok=True)
        numpy.save(kept, _drawings(side) if name == "drawings" else _patches(side, limit))
    return torch.from_numpy(numpy.load(kept)).permute(0, 3, 1, 2)


def validation(source="photographs", side=384):
    """One detailed square of each validation photograph, halved in size, or drawings that training doesn't draw: shape
    (count, side, side, 3)."""
    if source == "drawings":
        import drawings

        return drawings.drawings(32, side, seed=1001)
    squares = []
    for path in files("validate"):
        pixels = scaled(path, 0.5)
        candidates = list(_cut(pixels, side, side // 2, 0))
        squares.append(max(candidates, key=lambda patch: patch.mean(axis=2).std()))
    return numpy.stack(squares)


if __name__ == "__main__" and sys.argv[1:] == ["pack"]:
    pack()
