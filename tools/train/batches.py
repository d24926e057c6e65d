"""Draws training batches: (degraded picture, conditions, clean picture)."""
import math

import numpy
import torch

import degrade
from photographs import patches


class Batches:
    def __init__(self, recipe, seed):
        self.recipe = recipe
        self.random = numpy.random.default_rng(seed)
        self.patches = patches()
        self.smeared = degrade.Sheets(self.random, degrade.correlated_noise, (0.4, 0.5, 0.6, 0.8, 1.0))
        self.blotches = degrade.Sheets(self.random, degrade.chroma_noise, (1.0, 1.5, 2.2, 3.0, 4.0))

    def __call__(self):
        clean = self._clean()
        if self.recipe.scale == 1:
            degraded, conditions = self._degraded(clean)
        else:
            small = degrade.shrunk(self.random, clean, self.recipe.scale)
            degraded, conditions = self._degraded(small)
        return degraded, conditions, clean

    def _clean(self):
        side, random = self.recipe.side, self.random
        pixels = []
        for index in random.integers(0, len(self.patches), self.recipe.batch):
            top, left = random.integers(0, self.patches.shape[1] - side + 1, 2)
            patch = self.patches[index, top : top + side, left : left + side]
            patch = numpy.rot90(patch, random.integers(4))
            if random.random() < 0.5:
                patch = patch[:, ::-1]
            if random.random() < 0.3:
                patch = patch[:, :, random.permutation(3)]
            pixels.append(patch)
        return torch.from_numpy(numpy.stack(pixels)).permute(0, 3, 1, 2).float().contiguous() / 255

    def _kernel(self):
        mix, random = self.recipe.mix, self.random
        if random.random() >= mix.blur:
            return None
        kind = mix.kinds[random.integers(len(mix.kinds))]
        if kind == "gaussian":
            return degrade.gaussian_kernel(random.uniform(*mix.gaussian))
        if kind == "disc":
            return degrade.disc_kernel(random.uniform(*mix.disc))
        return degrade.line_kernel(random.uniform(*mix.line), random.uniform(0, math.pi))

    def _noise(self, clean):
        mix, random, count = self.recipe.mix, self.random, len(clean)
        low, high = mix.noise_range
        sigma = torch.from_numpy(random.uniform(low, high, count) * (random.random(count) < mix.noise)).float()
        field = degrade.white_noise(random, clean.shape)
        gain = degrade.camera_gain(clean)
        for i in range(count):
            if random.random() < mix.correlated:
                field[i] = self.smeared.patch(*clean.shape[2:])
            if random.random() < mix.camera:
                field[i] *= gain[i]
        return field * (sigma / 255)[:, None, None, None], sigma

    def _chroma(self, clean):
        mix, random, count = self.recipe.mix, self.random, len(clean)
        level = torch.from_numpy(random.uniform(*mix.chroma_range, count) * (random.random(count) < mix.chroma)).float()
        field = torch.zeros_like(clean)
        for i in torch.nonzero(level).flatten().tolist():
            field[i] = self.blotches.patch(*clean.shape[2:]) * level[i] / 255
        return field, level

    def _degraded(self, clean):
        mix, random, count = self.recipe.mix, self.random, len(clean)
        kernels = [self._kernel() for _ in range(count)]
        degraded = degrade.blurred(clean, kernels)
        noise, sigma = self._noise(degraded)
        chroma, level = self._chroma(degraded)
        qualities = [
            int(random.integers(*mix.jpeg_range)) if random.random() < mix.jpeg else None for _ in range(count)
        ]
        degraded = degrade.compressed(degrade.stored(degraded + noise + chroma), qualities)
        spread = torch.tensor([0.0 if kernel is None else degrade.spread(kernel) for kernel in kernels])
        worn = torch.tensor([0.0 if quality is None else (100 - quality) / 90 for quality in qualities])
        if self.recipe.scale == 1:
            return degraded, torch.stack([sigma / 75, level / 30, spread / 4, worn], 1)
        return degraded, torch.stack([sigma / 50, spread / 2, worn], 1)
