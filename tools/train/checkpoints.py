"""Checkpoints: a network's shape, its averaged weights, and how far its training got."""
import os
import pathlib

import torch

from networks import Network
from photographs import CACHE

FOLDER = CACHE / "checkpoints"


def path_of(name):
    return FOLDER / f"{name}.pt"


def save(name, network, weights, **state):
    FOLDER.mkdir(parents=True, exist_ok=True)
    part = path_of(name).with_suffix(".part")
    torch.save(dict(shape=network.shape, weights=weights, **state), part)
    os.replace(part, path_of(name))


def load(name_or_path):
    """(network with the averaged weights, whole state) of a recipe's name or a checkpoint file."""
    file = pathlib.Path(name_or_path)
    state = torch.load(file if file.suffix == ".pt" else path_of(name_or_path), weights_only=True)
    network = Network(**state["shape"])
    network.load_state_dict(state["weights"])
    return network, state
