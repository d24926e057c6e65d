"""What a camera does from light to a developed picture: colour filter mosaic, photon and read noise, demosaicing, colour.

The opposite way makes sensor data out of a finished photograph; noise added there comes out as it does in RAW files.
"""
import torch
from torch.nn import functional as F

from draws import constant

_CROSSTALK = ((0.0, -0.65, -0.1), (-0.25, 0.0, -0.45), (0.0, -0.65, 0.0))
# Colours at missing places by the linear 5x5 filters of Malvar, He and Cutler (2004), in eighths.
_CROSS = ((0, 0, -1, 0, 0), (0, 0, 2, 0, 0), (-1, 2, 4, 2, -1), (0, 0, 2, 0, 0), (0, 0, -1, 0, 0))
_ALONG = ((0, 0, 0.5, 0, 0), (0, -1, 0, -1, 0), (-1, 4, 5, 4, -1), (0, -1, 0, -1, 0), (0, 0, 0.5, 0, 0))
_CORNER = ((0, 0, -1.5, 0, 0), (0, 2, 0, 2, 0), (-1.5, 0, 6, 0, -1.5), (0, 2, 0, 2, 0), (0, 0, -1.5, 0, 0))


def to_linear(encoded):
    """sRGB's transfer curve undone (IEC 61966-2-1)."""
    return torch.where(encoded <= 0.04045, encoded / 12.92, ((encoded.clamp(min=0) + 0.055) / 1.055) ** 2.4)


def to_encoded(linear):
    return torch.where(linear <= 0.0031308, linear * 12.92, 1.055 * linear.clamp(min=1e-6) ** (1 / 2.4) - 0.055)


def _camera_matrices(draws, count):
    """Camera colour to linear sRGB: rows sum to 1 (white stays white), with the usual share of the other colours."""
    matrix = draws.uniform((count, 3, 3)) * constant(_CROSSTALK, draws.device)
    return matrix + torch.diag_embed(1 - matrix.sum(2))


def _mosaic_masks(height, width, device):
    y = torch.arange(height, device=device)[:, None] % 2
    x = torch.arange(width, device=device)[None] % 2
    red, blue = (y == 0) & (x == 0), (y == 1) & (x == 1)
    return torch.stack([red, ~(red | blue), blue]).float()


def _demosaiced(mosaic, masks):
    """mosaic (n, 1, h, w) as (n, 3, h, w)."""
    down = tuple(zip(*_ALONG))
    kernels = constant((_CROSS, _ALONG, down, _CORNER), mosaic.device)[:, None] / 8
    wide = F.pad(mosaic, (2, 2, 2, 2), mode="reflect")
    green, across, down, diagonal = F.conv2d(wide, kernels).unbind(1)
    red_at, green_at, blue_at = masks
    rows = (torch.arange(mosaic.shape[2], device=mosaic.device) % 2 == 0)[:, None].float()
    on_red_row = green_at * rows
    on_blue_row = green_at * (1 - rows)
    here = mosaic[:, 0]
    red = here * red_at + across * on_red_row + down * on_blue_row + diagonal * blue_at
    blue = here * blue_at + across * on_blue_row + down * on_red_row + diagonal * red_at
    return torch.stack([red, here * green_at + green * (1 - green_at), blue], 1)


def photographed(draws, clean, sigma):
    """Clean pictures as a camera with noise of about `sigma` (n, of encoded values) gives them, and the noise that is
    in them really (n): (pictures, sigma)."""
    count = len(clean)
    matrix = _camera_matrices(draws, count)
    gains = torch.ones(count, 3, device=draws.device)
    gains[:, 0], gains[:, 2] = draws.uniform(count, 1.3, 2.4), draws.uniform(count, 1.2, 2.2)
    sensor = torch.einsum("nij,njhw->nihw", torch.linalg.inv_ex(matrix).inverse, to_linear(clean)) / gains[:, :, None, None]
    masks = _mosaic_masks(*clean.shape[2:], draws.device)
    light = (sensor * masks).sum(1, keepdim=True)
    # At a mid-tone of 0.2 the transfer curve's slope is 1.12; gains and colour matrix add to the noise after that.
    variance = (sigma / 1.12 / 2).square()
    photons = draws.uniform(count, 0.4, 1.0)
    noise = variance * photons / 0.12, variance * (1 - photons)
    deviation = torch.sqrt(noise[0][:, None, None, None] * light.clamp(min=0) + noise[1][:, None, None, None])
    noisy = light + deviation * draws.normal(light.shape)

    def developed(mosaic):
        linear = _demosaiced(mosaic, masks) * gains[:, :, None, None]
        return to_encoded(torch.einsum("nij,njhw->nihw", matrix, linear).clamp(0, 1))

    picture = developed(noisy)
    return picture, (picture - developed(light)).square().mean((1, 2, 3)).sqrt()
