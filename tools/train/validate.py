"""PSNR of a network on the validation photographs, each degradation by itself. Usage: validate.py CHECKPOINT"""
import io
import math
import sys

import numpy
import torch
from PIL import Image
from torch.nn import functional as F

import degrade
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


def _restoring_rows():
    one = torch.ones(1)
    noise = [(f"noise {s}", None, s, 0, None) for s in (15, 25, 50)]
    blur = [(f"gaussian {s}", degrade.gaussian_kernels(one * s), 2, 0, None) for s in (1.0, 1.6)]
    lens = [(f"disc {r}", degrade.disc_kernels(one * r), 1, 0, None) for r in (3, 5, 7)]
    line = [(f"line {r}", degrade.line_kernels(one * r, one * 0.5), 1, 0, None) for r in (3, 5, 7)]
    rest = [("JPEG 20", None, 0, 0, 20), ("chroma 15", None, 10, 15, None), ("clean", None, 0, 0, None)]
    return noise + blur + lens + line + rest


@torch.no_grad()
def scores(network, rows=None):
    """(row, PSNR of the degraded picture, PSNR of the network's answer), means over the photographs in dB."""
    clean = torch.from_numpy(validation()).permute(0, 3, 1, 2).float() / 255
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
    for name, kernel, sigma, chroma, quality in rows or _restoring_rows():
        pairs = []
        for picture in clean:
            picture = picture[None]
            worn = picture if kernel is None else degrade.blurred(picture, kernel)
            worn = worn + draws.normal(picture.shape) * sigma / 255
            worn = degrade.stored(worn + degrade.chroma_noise(draws, picture.shape, 2.0) * chroma / 255)
            worn = worn if quality is None else _filed(worn, quality)
            spread = 0 if kernel is None else float(degrade.spread(kernel))
            level = 0 if quality is None else (100 - quality) / 90
            answer = network(worn, torch.tensor([[sigma / 75, chroma / 30, spread / 4, level]]))
            pairs.append((_psnr(worn, picture), _psnr(answer, picture)))
        found.append((name, *numpy.mean(pairs, 0)))
    return found


if __name__ == "__main__":
    torch.set_num_threads(2)
    for name, before, after in scores(load(sys.argv[1])[0]):
        print(f"{name:20} {before:6.2f} -> {after:6.2f} dB  {after - before:+.2f}")
