"""Draws training batches on a device: (degraded picture, conditions, clean picture)."""
import torch

import degrade
import jpeg
import sensor
from draws import Draws, crops
from photographs import pool

MARGIN = 16


class Batches:
    def __init__(self, recipe, seed, device):
        self.recipe = recipe
        self.draws = Draws(seed, device)
        self.pools = [(pool(name).to(device), share) for name, share in recipe.sources]
        self.smeared = degrade.Sheets(self.draws, degrade.correlated_noise, (0.4, 0.5, 0.6, 0.8, 1.0))
        self.blotches = degrade.Sheets(self.draws, degrade.chroma_noise, (1.0, 1.5, 2.2, 3.0, 4.0))

    def __call__(self):
        scale = self.recipe.scale
        clean = self._clean(self.recipe.side + MARGIN * scale)
        picture = clean if scale == 1 else degrade.shrunk(self.draws, clean, scale)
        degraded, conditions = self._degraded(picture)
        # Cut out at any place, so that blocks of compression and edges don't keep to the patch.
        top, left, side = self.draws.once(MARGIN + 1), self.draws.once(MARGIN + 1), self.recipe.side // scale
        degraded = degraded[:, :, top : top + side, left : left + side]
        top, left, side = top * scale, left * scale, self.recipe.side
        return degraded, conditions, clean[:, :, top : top + side, left : left + side]

    def _clean(self, side):
        count, parts = self.recipe.batch, []
        for pictures, share in self.pools:
            parts.append(crops(self.draws, pictures, min(round(self.recipe.batch * share), count), side))
            count -= len(parts[-1])
        clean = torch.cat(parts).float() / 255
        order = torch.rand(len(clean), 3, generator=self.draws.generator, device=self.draws.device).argsort(1)
        swapped = torch.gather(clean, 1, order[:, :, None, None].expand_as(clean))
        return torch.where(self.draws.chance(len(clean), 0.3)[:, None, None, None], swapped, clean)

    def _kernels(self, count):
        mix, draws = self.recipe.mix, self.draws
        kinds = {
            "gaussian": lambda: degrade.gaussian_kernels(draws.uniform(count, *mix.gaussian)),
            "disc": lambda: degrade.disc_kernels(draws.uniform(count, *mix.disc)),
            "line": lambda: degrade.line_kernels(draws.uniform(count, *mix.line), degrade.half_turn(draws, count)),
        }
        drawn = torch.stack([kinds[kind]() for kind in mix.kinds])
        return drawn[draws.index(count, len(mix.kinds)), torch.arange(count, device=draws.device)]

    def _noise(self, picture):
        mix, draws, count, side = self.recipe.mix, self.draws, len(picture), picture.shape[2]
        sigma = draws.uniform(count, *mix.noise_range) * draws.chance(count, mix.noise)
        smeared = draws.chance(count, mix.correlated)[:, None, None, None]
        field = torch.where(smeared, self.smeared(count, side), draws.normal(picture.shape))
        camera = draws.chance(count, mix.camera)[:, None, None, None]
        field = torch.where(camera, field * degrade.camera_gain(picture), field)
        return field * (sigma / 255)[:, None, None, None], sigma

    def _degraded(self, picture):
        mix, draws, count = self.recipe.mix, self.draws, len(picture)
        degraded = picture.clone()
        spread = torch.zeros(count, device=draws.device)
        blurred = draws.some(count, mix.blur)
        if len(blurred):
            kernels = self._kernels(len(blurred))
            degraded[blurred] = degrade.blurred(picture[blurred], kernels)
            spread[blurred] = degrade.spread(kernels)
        noise, sigma = self._noise(degraded)
        level = draws.uniform(count, *mix.chroma_range) * draws.chance(count, mix.chroma)
        blotches = self.blotches(count, picture.shape[2]) * (level / 255)[:, None, None, None]
        taken = draws.some(count, mix.sensor)
        if len(taken):
            degraded[taken], real = sensor.photographed(draws, degraded[taken], sigma[taken] / 255)
            sigma[taken] = real * 255
            noise[taken] = 0
        degraded = degrade.stored(degraded + noise + blotches)
        quality = torch.full((count,), 100.0, device=draws.device)
        squeezed = draws.some(count, mix.jpeg)
        if len(squeezed):
            quality[squeezed] = draws.uniform(len(squeezed), *mix.jpeg_range).round()
            degraded[squeezed] = jpeg.compressed(degraded[squeezed], quality[squeezed])
        worn = (100 - quality) / 90
        if self.recipe.scale == 1:
            return degraded, torch.stack([sigma / 75, level / 30, spread / 4, worn], 1)
        return degraded, torch.stack([sigma / 50, spread / 2, worn], 1)
