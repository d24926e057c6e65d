"""Trains one network. Usage: train.py RECIPE [--steps N] [--resume] [--threads N] [--seed N]"""
import argparse
import math
import time

import torch
from torch.nn import functional as F

import checkpoints
import validate
from batches import Batches
from networks import Network, grown_from
from recipes import RECIPES

AVERAGE = 0.999
KEEP_EVERY = 500


def _rate(recipe, step, steps):
    warm = min(1, (step + 1) / 200)
    return recipe.rate * warm * (0.5 + 0.5 * math.cos(math.pi * step / steps)) + 1e-6


def train(recipe, steps, resume, seed, device):
    network = Network(len(recipe.conditions), recipe.channels, recipe.blocks, recipe.scale)
    done = 0
    state = None
    if resume and checkpoints.path_of(recipe.name).exists():
        _, state = checkpoints.load(recipe.name)
        network.load_state_dict(state["training"])
        done = state["step"]
    elif recipe.start:
        print("taken:", len(grown_from(network, checkpoints.load(recipe.start)[1]["weights"])), "tensors")
    network = network.to(device, memory_format=torch.channels_last)
    average = {k: v.detach().clone() for k, v in network.state_dict().items()}
    if state:
        average = {k: v.to(device) for k, v in state["weights"].items()}
    adam = torch.optim.Adam(network.parameters(), recipe.rate, betas=(0.9, 0.99))
    if state:
        adam.load_state_dict(state["adam"])
    batches = Batches(recipe, seed + done)
    begin, summed = time.time(), 0.0
    hours = state.get("hours", 0) if state else 0
    for step in range(done, steps):
        worn, conditions, clean = (x.to(device) for x in batches())
        worn = worn.contiguous(memory_format=torch.channels_last)
        for group in adam.param_groups:
            group["lr"] = _rate(recipe, step, steps)
        with torch.autocast(device, torch.bfloat16):
            answer = network(worn, conditions).float()
        if recipe.scale > 1:
            answer = answer + validate.enlarged(worn, recipe.scale)
        loss = F.l1_loss(answer, clean)
        adam.zero_grad()
        loss.backward()
        adam.step()
        keep = min(AVERAGE, (step + 1) / (step + 10))
        with torch.no_grad():
            for key, value in network.state_dict().items():
                average[key].lerp_(value, 1 - keep)
        summed += float(loss)
        if (step + 1) % KEEP_EVERY == 0 or step + 1 == steps:
            weights = {k: v.cpu().contiguous() for k, v in average.items()}
            training = {k: v.cpu().contiguous() for k, v in network.state_dict().items()}
            checkpoints.save(recipe.name, network, weights, training=training, step=step + 1, adam=adam.state_dict(),
                             hours=hours + time.process_time() / 3600)
            print(f"{recipe.name} {step + 1}/{steps} loss {summed / KEEP_EVERY:.5f} "
                  f"{(time.time() - begin) / (step + 1 - done):.3f} s a step", flush=True)
            summed = 0.0
    for name, before, after in validate.scores(checkpoints.load(recipe.name)[0]):
        print(f"{name:20} {before:6.2f} -> {after:6.2f} dB", flush=True)


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("recipe", choices=RECIPES)
    parser.add_argument("--steps", type=int)
    parser.add_argument("--resume", action="store_true")
    parser.add_argument("--threads", type=int, default=2)
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    torch.set_num_threads(options.threads)
    torch.manual_seed(options.seed)
    chosen = RECIPES[options.recipe]
    train(chosen, options.steps or chosen.steps, options.resume, options.seed,
          "cuda" if torch.cuda.is_available() else "cpu")
