"""The restoring and the enlarging network: residual blocks of 3x3 convolutions at half resolution.

Both take encoded RGB of shape (n, 3, h, w), h and w even, and one condition vector of shape (n, k) that describes the
degradation; the conditions join the picture as constant maps.
"""
import torch
from torch import nn
from torch.nn import functional as F


class Block(nn.Module):
    def __init__(self, channels, groups):
        super().__init__()
        self.first = nn.Conv2d(channels, channels, 3, padding=1, groups=groups)
        self.second = nn.Conv2d(channels, channels, 3, padding=1, groups=groups)
        nn.init.zeros_(self.second.bias)
        self.second.weight.data *= 0.3

    def forward(self, x):
        return x + self.second(F.relu(self.first(x)))


class Network(nn.Module):
    """scale 1: returns the restored picture. scale 2 and 4: returns what to add to a bicubic enlargement.

    With groups, the blocks are as many networks side by side, which share head and tail.
    """

    def __init__(self, conditions, channels, blocks, scale=1, groups=1):
        super().__init__()
        self.shape = dict(conditions=conditions, channels=channels, blocks=blocks, scale=scale, groups=groups)
        self.scale = scale
        self.head = nn.Conv2d(12 + conditions, channels, 3, padding=1)
        self.body = nn.Sequential(*(Block(channels, groups) for _ in range(blocks)))
        self.tail = nn.Conv2d(channels, 12 * scale * scale, 3, padding=1)
        self.tail.weight.data *= 0.1
        nn.init.zeros_(self.tail.bias)

    @property
    def halo(self):
        """Pixels of context that a pixel of the input grid depends on."""
        return 2 * (2 + 2 * self.shape["blocks"])

    @property
    def multiply_adds(self):
        """Multiply-adds for one input pixel."""
        weights = sum(p.numel() for p in self.parameters() if p.dim() == 4)
        return weights / 4

    def forward(self, image, condition):
        half = F.pixel_unshuffle(image, 2)
        maps = condition[:, :, None, None].expand(-1, -1, half.shape[2], half.shape[3])
        x = self.body(self.head(torch.cat([half, maps], 1)))
        change = F.pixel_shuffle(self.tail(x), 2 * self.scale)
        return image + change if self.scale == 1 else change


def grown_from(network, weights):
    """Starts a network from another's weights where the shapes agree; returns the names that were taken."""
    own = network.state_dict()
    taken = {name: value for name, value in weights.items() if name in own and own[name].shape == value.shape}
    network.load_state_dict({**own, **taken})
    return sorted(taken)


def _turned(weights):
    """What gives for a picture mirrored at its diagonal the mirrored answer: the same network looking the other way."""
    order = torch.arange(12).view(3, 2, 2).transpose(1, 2).reshape(-1)  # of the pixels that make one at half resolution
    turned = {name: value.transpose(2, 3) if value.dim() == 4 else value for name, value in weights.items()}
    turned["head.weight"] = torch.cat([turned["head.weight"][:, order], turned["head.weight"][:, 12:]], 1)
    for name in ("tail.weight", "tail.bias"):
        turned[name] = turned[name][order]
    return turned


def doubled_from(network, weights):
    """Starts a network of two groups, scale 1, as the mean of another network's two ways to look at a picture.

    Self-ensemble (Timofte and others 2016) with the second look in the weights; from there the groups learn apart.
    """
    turned, own = _turned(weights), {}
    for name, value in weights.items():
        tail = name.startswith("tail")
        own[name] = torch.cat([value, turned[name]], 1 if tail else 0) if name != "tail.bias" else value + turned[name]
        own[name] = own[name] / 2 if tail else own[name]
    network.load_state_dict(own)
