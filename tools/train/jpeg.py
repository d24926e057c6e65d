"""JPEG's loss without a file: transform, quantise and back, for a batch on any device (ITU-T T.81, annex K's tables)."""
import math

import torch
from torch.nn import functional as F

from draws import constant

_LUMA = """16 11 10 16 24 40 51 61 12 12 14 19 26 58 60 55 14 13 16 24 40 57 69 56 14 17 22 29 51 87 80 62
18 22 37 56 68 109 103 77 24 35 55 64 81 104 113 92 49 64 78 87 103 121 120 101 72 92 95 98 112 100 103 99"""
_CHROMA = """17 18 24 47 99 99 99 99 18 21 26 66 99 99 99 99 24 26 56 99 99 99 99 99 47 66 99 99 99 99 99 99
99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99 99"""
_TO_YCC = ((0.299, 0.587, 0.114), (-0.168736, -0.331264, 0.5), (0.5, -0.418688, -0.081312))
_TO_RGB = ((1.0, 0.0, 1.402), (1.0, -0.344136, -0.714136), (1.0, 1.772, 0.0))


def _table(text, device):
    return constant(tuple(float(word) for word in text.split()), device).reshape(8, 8)


def _cosines(device):
    k = torch.arange(8, dtype=torch.float32, device=device)
    rows = torch.cos((2 * k[None] + 1) * k[:, None] * math.pi / 16) / 2
    rows[0] /= math.sqrt(2)
    return rows


def _quantised(plane, table, cosines):
    """plane (n, h, w), h and w multiples of 8; table (n, 8, 8)."""
    n, h, w = plane.shape
    blocks = plane.reshape(n, h // 8, 8, w // 8, 8).transpose(2, 3)
    spectrum = cosines @ blocks @ cosines.T
    steps = table[:, None, None]
    spectrum = (spectrum / steps).round() * steps
    return (cosines.T @ spectrum @ cosines).transpose(2, 3).reshape(n, h, w)


def compressed(batch, quality):
    """batch (n, 3, h, w), h and w multiples of 16; quality (n), 1..100. Colours are halved up to quality 85."""
    device = batch.device
    scale = torch.where(quality < 50, 5000 / quality, 200 - 2 * quality).floor()[:, None, None]
    luma, chroma = (((_table(t, device) * scale + 50) / 100).floor().clamp(1, 255) for t in (_LUMA, _CHROMA))
    pixels = (batch.clamp(0, 1) * 255).round() - 128
    ycc = torch.einsum("ij,njhw->nihw", constant(_TO_YCC, device), pixels).round()
    cosines = _cosines(device)
    y = _quantised(ycc[:, 0], luma, cosines)
    full = torch.stack([_quantised(ycc[:, i], chroma, cosines) for i in (1, 2)], 1)
    small = F.avg_pool2d(ycc[:, 1:], 2).round()
    small = torch.stack([_quantised(small[:, i], chroma, cosines) for i in (0, 1)], 1)
    halved = F.interpolate(small, scale_factor=2, mode="bilinear", align_corners=False)
    colours = torch.where((quality > 85)[:, None, None, None], full, halved)
    back = torch.einsum("ij,njhw->nihw", constant(_TO_RGB, device), torch.cat([y[:, None], colours], 1).round())
    return ((back + 128).round().clamp(0, 255)) / 255
