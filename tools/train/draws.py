"""Random draws on one device from one seed, and crops of pictures that lie there."""
import functools

import torch


@functools.cache
def constant(values, device):
    """A tensor of nested tuples, brought to the device once: each transfer would wait for the accelerator."""
    return torch.tensor(values, device=device)


class Draws:
    def __init__(self, seed, device):
        self.device = device
        self.generator = torch.Generator(device).manual_seed(seed)
        # What decides shapes is drawn beside the device, so that an accelerator need not be waited for.
        self.host = torch.Generator().manual_seed(seed + 1)

    def uniform(self, count, low=0.0, high=1.0):
        return low + (high - low) * torch.rand(count, generator=self.generator, device=self.device)

    def chance(self, count, probability):
        return self.uniform(count) < probability

    def normal(self, shape):
        return torch.randn(shape, generator=self.generator, device=self.device)

    def index(self, count, below):
        return torch.randint(below, (count,), generator=self.generator, device=self.device)

    def once(self, below):
        return int(torch.randint(below, (1,), generator=self.host))

    def fraction(self):
        return float(torch.rand(1, generator=self.host))

    def some(self, count, probability):
        """Indices of the members of a batch that a chance meets."""
        met = torch.rand(count, generator=self.host) < probability
        return torch.nonzero(met).flatten().to(self.device, non_blocking=True)


def crops(draws, pool, count, side):
    """`count` squares of pool (n, c, h, w) at random places, turned and mirrored: (count, c, side, side)."""
    which = draws.index(count, pool.shape[0])
    top = draws.index(count, pool.shape[2] - side + 1)
    left = draws.index(count, pool.shape[3] - side + 1)
    axis = torch.arange(side, device=draws.device).expand(count, side)
    down = torch.where(draws.chance(count, 0.5)[:, None], axis, side - 1 - axis)
    along = torch.where(draws.chance(count, 0.5)[:, None], axis, side - 1 - axis)
    turned = draws.chance(count, 0.5)[:, None, None]
    y = torch.where(turned, down[:, None, :], down[:, :, None]) + top[:, None, None]
    x = torch.where(turned, along[:, :, None], along[:, None, :]) + left[:, None, None]
    found = pool.permute(0, 2, 3, 1)[which[:, None, None], y, x]
    return found.permute(0, 3, 1, 2)
