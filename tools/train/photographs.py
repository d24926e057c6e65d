"""Photographs of distribution packages as patches: uint8 arrays of shape (count, side, side, 3)."""
import glob
import pathlib

import numpy
from PIL import Image

ROOM = pathlib.Path(__file__).resolve().parent
CACHE = ROOM.parent.parent / "build" / "train"
Image.MAX_IMAGE_PIXELS = None


def files(use):
    """Paths of the photographs listed for "train" or "validate", sorted."""
    found = set()
    for line in (ROOM / "photographs.txt").read_text().splitlines():
        if line.startswith(use + " "):
            matches = glob.glob("/usr/share/" + line.split()[2])
            if not matches:
                raise SystemExit(f"no photograph matches {line}; run tools/train/setup")
            found.update(matches)
    return sorted(found)


def scaled(path, factor):
    """The photograph scaled by a factor; reducing it removes its own noise and compression."""
    with Image.open(path) as image:
        image = image.convert("RGB")
    size = (round(image.width * factor), round(image.height * factor))
    return numpy.asarray(image.resize(size, Image.Resampling.LANCZOS))


def _cut(pixels, side, step, threshold):
    for top in range(0, pixels.shape[0] - side + 1, step):
        for left in range(0, pixels.shape[1] - side + 1, step):
            patch = pixels[top : top + side, left : left + side]
            # Sky and other even areas teach little: few of them are enough.
            if patch.mean(axis=2).std() > threshold or (top + left) // step % 11 == 0:
                yield patch


def patches(side=144, limit=400):
    """Training patches, built once and kept; at most `limit` of one photograph at one scale."""
    kept = CACHE / f"patches-{side}-{limit}.npy"
    if not kept.exists():
        random = numpy.random.default_rng(1)
        found = []
        for path in files("train"):
            for factor in (0.35, 0.5, 0.7):
                cut = list(_cut(scaled(path, factor), side, side * 3 // 4, 8))
                random.shuffle(cut)
                found.extend(cut[:limit])
        CACHE.mkdir(parents=True, exist_ok=True)
        numpy.save(kept, numpy.stack(found))
    return numpy.load(kept, mmap_mode="r")


def validation(side=384):
    """One detailed square of each validation photograph, halved in size: shape (count, side, side, 3)."""
    squares = []
    for path in files("validate"):
        pixels = scaled(path, 0.5)
        candidates = list(_cut(pixels, side, side // 2, 0))
        squares.append(max(candidates, key=lambda patch: patch.mean(axis=2).std()))
    return numpy.stack(squares)
