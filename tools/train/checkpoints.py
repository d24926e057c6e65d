"""Checkpoints: a network's shape, its averaged weights, and how far its training got."""
import os
import pathlib

import onnx
import onnx.numpy_helper
import torch

from networks import Network
from photographs import CACHE, FOLDER
from shorten import SUFFIX

FOLDER = CACHE / "checkpoints"


def path_of(name):
    return FOLDER / f"{name}.pt"


def save(name, network, weights, **state):
    FOLDER.mkdir(parents=True, exist_ok=True)
    part = path_of(name).with_suffix(".part")
    torch.save(dict(shape=network.shape, weights=weights, **state), part)
    os.replace(part, path_of(name))


def _exported(name):
    """What an exported file holds, so that training goes on from the repository on another machine."""
    file = next((FOLDER.parent.parent / "data" / "models").glob(f"*/{name}.onnx"), None)
    if file is None:
        raise SystemExit(f"{name} has neither a checkpoint nor an exported file: train it first")
    tensors = {t.name.removesuffix(SUFFIX): torch.from_numpy(onnx.numpy_helper.to_array(t).astype("float32")) for t in onnx.load(file).graph.initializer}
    weights = {name: value for name, value in tensors.items() if name.endswith((".weight", ".bias"))}
    channels, inputs = weights["head.weight"].shape[:2]
    blocks = sum(key.endswith("first.weight") for key in weights)
    scale = {12: 1, 48: 2, 192: 4}[weights["tail.weight"].shape[0]]
    groups = channels // weights["body.0.first.weight"].shape[1]
    return dict(shape=dict(conditions=inputs - 12, channels=channels, blocks=blocks, scale=scale, groups=groups), weights=weights, step=0)


def load(name_or_path):
    """(network with the averaged weights, whole state) of a recipe's name or a checkpoint file."""
    file = pathlib.Path(name_or_path)
    if file.suffix != ".pt":
        file = path_of(name_or_path)
    state = torch.load(file, weights_only=True) if file.exists() else _exported(name_or_path)
    network = Network(**state["shape"])
    network.load_state_dict(state["weights"])
    return network, state
