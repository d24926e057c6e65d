"""Degradations that cameras and files leave on photographs, for whole batches on any device.

Batches are float (n, 3, h, w) of encoded values 0..1; kernels (n, 21, 21); the other parameters (n).
"""
import math

import torch
from torch.nn import functional as F

from draws import crops

KERNEL = 21


def _grid(like):
    axis = torch.arange(KERNEL, dtype=torch.float32, device=like.device) - KERNEL // 2
    return torch.meshgrid(axis, axis, indexing="ij")


def _even(kernel):
    return kernel / kernel.sum((1, 2), keepdim=True)


def gaussian_kernels(sigma):
    y, x = _grid(sigma)
    return _even(torch.exp(-(x * x + y * y) / (2 * sigma.square())[:, None, None]))


def disc_kernels(radius):
    """A lens out of focus: an even disc with a soft edge one pixel wide."""
    y, x = _grid(radius)
    return _even((radius[:, None, None] + 0.5 - torch.sqrt(x * x + y * y)).clamp(0, 1))


def line_kernels(length, angle):
    """A camera that moved evenly along a line."""
    y, x = _grid(length)
    cos, sin = torch.cos(angle)[:, None, None], torch.sin(angle)[:, None, None]
    along, across = x * cos + y * sin, -x * sin + y * cos
    return _even((length[:, None, None] / 2 + 0.5 - along.abs()).clamp(0, 1) * (1 - across.abs()).clamp(0, 1))


def spread(kernels):
    """Each kernel's largest root mean square width along one axis, in pixels."""
    y, x = _grid(kernels)
    xx, yy, xy = ((kernels * m).sum((1, 2)) for m in (x * x, y * y, x * y))
    return torch.sqrt((xx + yy) / 2 + torch.sqrt((xx - yy).square() / 4 + xy.square()))


def blurred(batch, kernels):
    """Each picture of the batch with its own kernel."""
    n, c, h, w = batch.shape
    wide = F.pad(batch, (KERNEL // 2,) * 4, mode="reflect").reshape(1, n * c, h + KERNEL - 1, w + KERNEL - 1)
    return F.conv2d(wide, kernels.repeat_interleave(c, 0)[:, None], groups=n * c).reshape(batch.shape)


def correlated_noise(draws, shape, width):
    """Noise that processing smeared over its neighbours; standard deviation 1."""
    n, c, h, w = shape
    line = gaussian_kernels(torch.tensor([float(width)], device=draws.device))[0].sum(0)
    field = draws.normal((n * c, 1, h + KERNEL - 1, w + KERNEL - 1))
    field = F.conv2d(F.conv2d(field, line[None, None, None]), line[None, None, :, None])
    return field.reshape(shape) / line.square().sum()


def chroma_noise(draws, shape, width):
    """Coloured blotches without luminance; standard deviation 1 over the three channels together."""
    field = correlated_noise(draws, shape, width)
    weights = torch.tensor([0.299, 0.587, 0.114], device=draws.device)[None, :, None, None]
    field = field - (field * weights).sum(1, keepdim=True)
    return field / field.std()


class Sheets:
    """Large sheets of smeared noise, drawn once: a crop of one costs less than new noise."""

    def __init__(self, draws, draw, widths, side=1024):
        self.draws = draws
        self.pool = torch.cat([draw(draws, (1, 3, side, side), width) for width in widths])

    def __call__(self, count, side):
        sign = torch.where(self.draws.chance(count, 0.5), 1.0, -1.0)
        return crops(self.draws, self.pool, count, side) * sign[:, None, None, None]


def camera_gain(clean):
    """How noise grows with light where a sensor counted photons and a tone curve followed; mean square near 1."""
    return torch.sqrt(0.35 + 1.9 * clean * (1 - 0.55 * clean))


def shrunk(draws, batch, scale):
    """A batch reduced by 2 or 4 with a kernel drawn for the batch: mostly bicubic, else by area or soft."""
    size = (batch.shape[2] // scale, batch.shape[3] // scale)
    kind = draws.fraction()
    if kind < 0.8:
        return F.interpolate(batch, size=size, mode="bicubic", antialias=True, align_corners=False)
    if kind < 0.9:
        return F.interpolate(batch, size=size, mode="area")
    sigma = draws.uniform(len(batch), scale * 0.35, scale * 0.6)
    return F.interpolate(blurred(batch, gaussian_kernels(sigma)), size=size, mode="bilinear", align_corners=False)


def stored(batch):
    """What an 8-bit file keeps."""
    return (batch.clamp(0, 1) * 255).round() / 255


def half_turn(draws, count):
    return draws.uniform(count, 0, math.pi)
