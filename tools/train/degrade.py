"""Degradations that cameras and files leave on photographs. Batches are float (n, 3, h, w) of encoded values 0..1.

Each function takes a numpy random generator, so that a seed repeats a run.
"""
import io
import math

import numpy
import torch
from PIL import Image
from torch.nn import functional as F

KERNEL = 21


def _field(random, shape):
    return torch.randn(shape, generator=torch.Generator().manual_seed(int(random.integers(2**62))))


def _grid():
    axis = torch.arange(KERNEL, dtype=torch.float32) - KERNEL // 2
    return torch.meshgrid(axis, axis, indexing="ij")


def gaussian_kernel(sigma):
    y, x = _grid()
    kernel = torch.exp(-(x * x + y * y) / (2 * sigma * sigma))
    return kernel / kernel.sum()


def disc_kernel(radius):
    """A lens out of focus: an even disc with a soft edge one pixel wide."""
    y, x = _grid()
    kernel = (radius + 0.5 - torch.sqrt(x * x + y * y)).clamp(0, 1)
    return kernel / kernel.sum()


def line_kernel(length, angle):
    """A camera that moved evenly along a line."""
    y, x = _grid()
    along = x * math.cos(angle) + y * math.sin(angle)
    across = -x * math.sin(angle) + y * math.cos(angle)
    kernel = (length / 2 + 0.5 - along.abs()).clamp(0, 1) * (1 - across.abs()).clamp(0, 1)
    return kernel / kernel.sum()


def spread(kernel):
    """The kernel's largest root mean square width along one axis, in pixels."""
    y, x = _grid()
    xx, yy, xy = (kernel * x * x).sum(), (kernel * y * y).sum(), (kernel * x * y).sum()
    half = torch.sqrt((xx - yy) ** 2 / 4 + xy**2)
    return float(torch.sqrt((xx + yy) / 2 + half))


def blurred(batch, kernels):
    """Each picture of the batch with its own kernel (None leaves it as it is)."""
    out = batch.clone()
    for i, kernel in enumerate(kernels):
        if kernel is not None:
            margin = KERNEL // 2
            picture = F.pad(batch[i : i + 1], (margin,) * 4, mode="reflect")
            out[i] = F.conv2d(picture.transpose(0, 1), kernel[None, None]).transpose(0, 1)[0]
    return out


def white_noise(random, shape):
    return _field(random, shape)


def correlated_noise(random, shape, width):
    """Noise that processing smeared over its neighbours; standard deviation 1."""
    n, c, h, w = shape
    margin = KERNEL // 2
    line = gaussian_kernel(width).sum(0)
    field = _field(random, (n * c, 1, h + 2 * margin, w + 2 * margin))
    field = F.conv2d(F.conv2d(field, line[None, None, None]), line[None, None, :, None])
    return field.reshape(shape) / line.square().sum()


def chroma_noise(random, shape, width):
    """Coloured blotches without luminance; standard deviation 1 over the three channels together."""
    field = correlated_noise(random, shape, width)
    weights = torch.tensor([0.299, 0.587, 0.114])[None, :, None, None]
    field = field - (field * weights).sum(1, keepdim=True)
    return field / field.std()


class Sheets:
    """Large sheets of smeared noise, drawn once: a patch of one costs less than new noise."""

    def __init__(self, random, draw, widths, side=1024):
        self.random = random
        self.sheets = [draw(random, (1, 3, side, side), width)[0] for width in widths]

    def patch(self, height, width):
        sheet = self.sheets[self.random.integers(len(self.sheets))]
        top = int(self.random.integers(sheet.shape[1] - height + 1))
        left = int(self.random.integers(sheet.shape[2] - width + 1))
        patch = sheet[:, top : top + height, left : left + width]
        return patch.flip(1) if self.random.random() < 0.5 else -patch.transpose(1, 2)


def camera_gain(clean):
    """How noise grows with light where a sensor counted photons and a tone curve followed; mean square near 1."""
    return torch.sqrt(0.35 + 1.9 * clean * (1 - 0.55 * clean))


def compressed(batch, qualities):
    """JPEG at each picture's own quality (None leaves it as it is)."""
    out = batch.clone()
    for i, quality in enumerate(qualities):
        if quality is not None:
            pixels = (batch[i].clamp(0, 1) * 255).round().byte().permute(1, 2, 0).contiguous().numpy()
            file = io.BytesIO()
            Image.fromarray(pixels).save(file, "JPEG", quality=quality, subsampling=0 if quality > 85 else 2)
            read = torch.from_numpy(numpy.array(Image.open(file)))
            out[i] = read.permute(2, 0, 1).float() / 255
    return out


def shrunk(random, batch, scale):
    """A batch reduced by 2 or 4 with a kernel drawn for the batch: mostly bicubic, else by area or soft."""
    size = (batch.shape[2] // scale, batch.shape[3] // scale)
    kind = random.random()
    if kind < 0.8:
        return F.interpolate(batch, size=size, mode="bicubic", antialias=True, align_corners=False)
    if kind < 0.9:
        return F.interpolate(batch, size=size, mode="area")
    kernel = gaussian_kernel(scale * random.uniform(0.35, 0.6))
    smooth = blurred(batch, [kernel] * len(batch))
    return F.interpolate(smooth, size=size, mode="bilinear", antialias=False, align_corners=False)


def stored(batch):
    """What an 8-bit file keeps."""
    return (batch.clamp(0, 1) * 255).round() / 255
