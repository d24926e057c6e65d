"""The restoring and the enlarging network: residual blocks of 3x3 convolutions at half resolution.

Both take encoded RGB of shape (n, 3, h, w), h and w even, and one condition vector of shape (n, k) that tells the
degradation; the conditions join the picture as constant maps.
"""
import torch
from torch import nn
from torch.nn import functional as F


class Block(nn.Module):
    def __init__(self, channels):
        super().__init__()
        self.first = nn.Conv2d(channels, channels, 3, padding=1)
        self.second = nn.Conv2d(channels, channels, 3, padding=1)
        nn.init.zeros_(self.second.bias)
        self.second.weight.data *= 0.3

    def forward(self, x):
        return x + self.second(F.relu(self.first(x)))


class Network(nn.Module):
    """scale 1: returns the restored picture. scale 2 and 4: returns what to add to a bicubic enlargement."""

    def __init__(self, conditions, channels, blocks, scale=1):
        super().__init__()
        self.shape = dict(conditions=conditions, channels=channels, blocks=blocks, scale=scale)
        self.scale = scale
        self.head = nn.Conv2d(12 + conditions, channels, 3, padding=1)
        self.body = nn.Sequential(*(Block(channels) for _ in range(blocks)))
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
    """Starts a network from another's weights; returns the names that were taken.

    A wider or deeper network of the same kind computes what the other did (Chen and others 2016, Net2Net): old channels
    get nothing from new ones, and new blocks add nothing yet. What differs in another way keeps its own start.
    """
    own, taken = network.state_dict(), []
    for name, value in weights.items():
        mine, theirs = own[name].shape if name in own else (), value.shape
        other_input = name == "head.weight" and mine[1:] != theirs[1:]
        other_output = name.startswith("tail") and mine[:1] != theirs[:1]
        if len(mine) != len(theirs) or any(m < t for m, t in zip(mine, theirs)) or other_input or other_output:
            continue
        grown = own[name].clone()
        if value.dim() == 4:
            grown[: value.shape[0]] = 0
        grown[tuple(slice(size) for size in value.shape)] = value
        own[name] = grown
        taken.append(name)
    for name in own:
        if name.startswith("body") and ".second." in name and name not in weights:
            own[name] = torch.zeros_like(own[name])
    network.load_state_dict(own)
    return sorted(taken)
