"""PSNR of a network on the validation photographs or drawings, each degradation by itself. Usage: validate.py NAME [drawings]"""
import io
import math
import sys
from dataclasses import dataclass

import numpy
import torch
from PIL import Image
from torch.nn import functional as F

import degrade
import sensor
from checkpoints import load
from draws import Draws
from photographs import validation


def _psnr(a, b):
    return -10 * math.log10(max(float((a.clamp(0, 1) - b).square().mean()), 1e-10))


def _luma(x):
    """Luminance of ITU-R BT.601 in video range, as enlargement is usually compared."""
    weights = torch.tensor([65.481, 128.553, 24.966]) / 255
    return (x * weights[None, :, None, None]).sum(1, keepdim=True) + 16 / 255


def enlarged(small, scale):
    return F.interpolate(small, scale_factor=scale, mode="bicubic", align_corners=False)


def _filed(picture, quality):
    """The picture (1, 3, h, w) through a JPEG file."""
    pixels = (picture[0] * 255).round().byte().permute(1, 2, 0).contiguous().numpy()
    file = io.BytesIO()
    Image.fromarray(pixels).save(file, "JPEG", quality=quality, subsampling=0 if quality > 85 else 2)
    return torch.from_numpy(numpy.array(Image.open(file))).permute(2, 0, 1)[None].float() / 255


@dataclass
class Row:
    name: str
    kernel: torch.Tensor = None
    sigma: float = 0
    chroma: float = 0
    quality: int = None
    sensor: bool = False

    def worn(self, draws, picture):
        """The picture (1, 3, h, w) with this row's damage, and its conditions."""
        spread = 0 if self.kernel is None else float(degrade.spread(self.kernel))
        level = 0 if self.quality is None else (100 - self.quality) / 90
        sigma = self.sigma
        worn = picture if self.kernel is None else degrade.blurred(picture, self.kernel)
        if self.sensor:
            worn, sigma = sensor.photographed(draws, worn, torch.full((1,), sigma / 255))
            sigma = 255 * float(sigma)
        else:
            worn = worn + draws.normal(picture.shape) * sigma / 255
        worn = degrade.stored(worn + degrade.chroma_noise(draws, picture.shape, 2.0) * self.chroma / 255)
        worn = worn if self.quality is None else _filed(worn, self.quality)
        return worn, torch.tensor([[sigma / 75, self.chroma / 30, spread / 4, level]])


def _restoring_rows():
    one = torch.ones(1)
    return [
        *(Row(f"noise {s}", sigma=s) for s in (15, 25, 50)),
        *(Row(f"gaussian {s}", degrade.gaussian_kernels(one * s), 2) for s in (1.0, 1.6)),
        *(Row(f"disc {r}", degrade.disc_kernels(one * r), 1) for r in (3, 5, 7)),
        *(Row(f"line {r}", degrade.line_kernels(one * r, one * 0.5), 1) for r in (3, 5, 7)),
        Row("JPEG 20", quality=20),
        Row("chroma 15", sigma=10, chroma=15),
        *(Row(f"sensor, noise {s}", sigma=s, sensor=True) for s in (5, 15)),
        Row("clean"),
    ]


@torch.no_grad()
def scores(network, source="photographs"):
    """(row, PSNR of the degraded picture, PSNR of the network's answer), means over the pictures in dB."""
    clean = torch.from_numpy(validation(source)).permute(0, 3, 1, 2).float() / 255
    draws = Draws(5, "cpu")
    network.eval()
    if network.scale > 1:
        small = degrade.stored(F.interpolate(clean, scale_factor=1 / network.scale, mode="bicubic", antialias=True))
        base = enlarged(small, network.scale)
        answer = torch.cat([network(s[None], torch.zeros(1, network.shape["conditions"])) for s in small]) + base
        edge = slice(network.scale, -network.scale)
        both = [_luma(x.clamp(0, 1))[..., edge, edge] for x in (base, answer, clean)]
        pairs = [(_psnr(b, c), _psnr(a, c)) for b, a, c in zip(*both)]
        return [("bicubic, luminance", *numpy.mean(pairs, 0))]
    found = []
    for row in _restoring_rows():
        pairs = []
        for picture in clean.split(1):
            worn, conditions = row.worn(draws, picture)
            pairs.append((_psnr(worn, picture), _psnr(network(worn, conditions), picture)))
        found.append((row.name, *numpy.mean(pairs, 0)))
    return found


if __name__ == "__main__":
    torch.set_num_threads(2)
    for name, before, after in scores(load(sys.argv[1])[0], *sys.argv[2:3]):
        print(f"{name:20} {before:6.2f} -> {after:6.2f} dB  {after - before:+.2f}")
