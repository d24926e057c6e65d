"""Trains one network.

Usage: train.py RECIPE [--steps N | --minutes M] [--resume] [--start NAME] [--batch N] [--threads N] [--seed N]
With --minutes the rate falls with the time instead of the steps; the same run then doesn't repeat exactly.
"""
import argparse
import dataclasses
import math
import time

import torch

import checkpoints
import validate
from batches import Batches
from networks import Network, doubled_from, grown_from
from recipes import RECIPES
from step import Step

AVERAGED = 10  # steps between two readings of the moving average of the weights
AVERAGE = 0.99
SAY_EVERY = 250


def _share(step, steps, begin, minutes):
    return (time.time() - begin) / (60 * minutes) if minutes else step / steps


def train(recipe, steps, minutes, resume, seed, device):
    network = Network(len(recipe.conditions), recipe.channels, recipe.blocks, recipe.scale, recipe.groups)
    done, state = 0, {}
    if resume and checkpoints.path_of(recipe.name).exists():
        _, state = checkpoints.load(recipe.name)
        network.load_state_dict(state["training"])
        done = state["step"]
    elif recipe.groups > 1 and recipe.start != recipe.name:
        doubled_from(network, checkpoints.load(recipe.start)[1]["weights"])
    elif recipe.start:
        print("taken:", len(grown_from(network, checkpoints.load(recipe.start)[1]["weights"])), "tensors", flush=True)
    network = network.to(device, memory_format=torch.channels_last)
    learn = Step(torch.compile(network) if device == "cuda" else network, recipe, device)
    if state:
        learn.adam.load_state_dict(state["adam"])
    average = {k: v.detach().clone() for k, v in network.state_dict().items()}
    if state:
        average = {k: v.to(device) for k, v in state["weights"].items()}
    batches = Batches(recipe, seed + done, device)
    begin, hours, summed, step = time.time(), state.get("hours", 0), 0.0, done
    timed = begin, done
    while (share := _share(step, steps, begin, minutes)) < 1:
        learn.set_rate(recipe.rate * min(1, (step - done + 1) / 200) * (0.5 + 0.5 * math.cos(math.pi * share)) + 1e-6)
        summed = summed + learn(*batches())
        step += 1
        if step % AVERAGED == 0:
            keep = min(AVERAGE, step / (step + 100))
            own = network.state_dict()
            torch._foreach_lerp_([average[k] for k in own], list(own.values()), 1 - keep)
        if step % SAY_EVERY == 0:
            print(f"{recipe.name} {step} loss {float(summed) / SAY_EVERY:.5f} "
                  f"{1000 * (time.time() - timed[0]) / (step - timed[1]):.1f} ms a step, {time.time() - begin:.0f} s", flush=True)
            summed, timed = 0.0, (time.time(), step)
    weights = {k: v.cpu().contiguous() for k, v in average.items()}
    training = {k: v.cpu().contiguous() for k, v in network.state_dict().items()}
    spent = time.time() - begin if device == "cuda" else time.process_time()
    checkpoints.save(recipe.name, network, weights, training=training, step=step, adam=learn.adam.state_dict(),
                     hours=hours + spent / 3600, batch=recipe.batch, start=recipe.start, device=device)
    print(f"{recipe.name} ends after {step} steps", flush=True)


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("recipe", choices=RECIPES)
    parser.add_argument("--steps", type=int)
    parser.add_argument("--minutes", type=float)
    parser.add_argument("--start", help="another network to start from, such as the recipe's own exported one")
    parser.add_argument("--batch", type=int)
    parser.add_argument("--resume", action="store_true")
    parser.add_argument("--threads", type=int, default=2)
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    torch.set_num_threads(options.threads)
    torch.manual_seed(options.seed)
    chosen = RECIPES[options.recipe]
    changes = dict(batch=options.batch, start=options.start)
    chosen = dataclasses.replace(chosen, **{key: value for key, value in changes.items() if value})
    where = "cuda" if torch.cuda.is_available() else "cpu"
    torch.backends.cudnn.benchmark = True
    train(chosen, options.steps or chosen.steps, options.minutes, options.resume, options.seed, where)
