"""Writes a network's weights as ONNX and describes them in a card. Usage: export.py RECIPE FILE.onnx

The file's inputs are `image` (1, 3, H, W), H and W even, and `condition` (1, K); its output is `result`.
"""
import contextlib
import os
import pathlib
import sys

import numpy
import torch

import checkpoints
import validate
from photographs import files
from recipes import RECIPES
from shorten import shorten


@contextlib.contextmanager
def _quiet():
    """The runtime registers its operators twice and says so a thousand times when it is loaded."""
    kept, nothing = os.dup(2), os.open(os.devnull, os.O_WRONLY)
    os.dup2(nothing, 2)
    try:
        yield
    finally:
        os.dup2(kept, 2)
        os.close(kept)
        os.close(nothing)


def _difference(network, file):
    """How far the file's answer is from the network's at most, of values 0..1."""
    with _quiet():
        import onnxruntime

        session = onnxruntime.InferenceSession(str(file), providers=["CPUExecutionProvider"])
    image, condition = torch.rand(1, 3, 128, 80), torch.rand(1, network.shape["conditions"])
    with torch.no_grad():
        expected = network(image, condition).numpy()
    return float(numpy.abs(session.run(None, {"image": image.numpy(), "condition": condition.numpy()})[0] - expected).max())


def write(network, file):
    network.eval()
    example = (torch.rand(1, 3, 64, 96), torch.rand(1, network.shape["conditions"]))
    torch.onnx.export(network, example, str(file), input_names=["image", "condition"], output_names=["result"],
                      dynamic_axes={"image": {2: "height", 3: "width"}, "result": {2: "height", 3: "width"}},
                      opset_version=17, dynamo=False)
    for prepare, bound in ((lambda: None, 1e-4), (lambda: shorten(file), 1e-2)):
        prepare()
        difference = _difference(network, file)
        if difference > bound:
            raise SystemExit(f"{file}: the file answers otherwise than the network, by {difference}")
    print(f"{file.name}: {file.stat().st_size:,} bytes, at most {difference:.4f} from the network in 32 bit")


def _start(recipe, state):
    start = state.get("start", recipe.start)
    return "its own earlier weights" if start == recipe.name else start or "random weights"


def card(recipe, network, state):
    packages = sorted({line.split()[1] for line in
                       (pathlib.Path(__file__).parent / "photographs.txt").read_text().splitlines() if line.startswith("train ")})
    drawn = "".join(f"; {share:.0%} {name} of the tool's own" for name, share in recipe.sources if name == "drawings")
    source = recipe.sources[0][0]
    where = "on an accelerator beside up to four other networks" if state.get("device") == "cuda" else "on one core"
    rows = [f"| {name} | {before:.2f} | {after:.2f} |" for name, before, after in validate.scores(network, source)]
    groups = f" in {recipe.groups} groups" if recipe.groups > 1 else ""
    mix = ", ".join(f"{key} {value}" for key, value in vars(recipe.mix).items())
    return "\n".join([
        f"# {recipe.name}",
        "",
        f"A network of {recipe.blocks} residual blocks of 3x3 convolutions with {recipe.channels} channels{groups} at half resolution, "
        f"scale {recipe.scale}: {sum(p.numel() for p in network.parameters()):,} parameters, "
        f"{network.multiply_adds / 1000:.1f} thousand multiply-adds for each input pixel, halo {network.halo} pixels.",
        "",
        f"- Conditions: {'; '.join(recipe.conditions)}.",
        f"- Learned from {len(files('train'))} photographs of the packages {', '.join(packages)} (free licences, named in their "
        f"copyright files), scaled to 0.6, 0.45 and 0.33{drawn}.",
        f"- Started from: {_start(recipe, state)}; {state['step']:,} steps of {state.get('batch', recipe.batch)} patches of "
        f"{recipe.side} pixels, seed 1, {60 * state.get('hours', 0):.0f} minutes {where}.",
        f"- Degradations (chances and ranges; noise in 8-bit levels, widths in pixels): {mix}.",
        f"- Licence: that of this program.",
        "",
        f"Means over the validation {source}, PSNR in dB:",
        "",
        "| degradation | degraded | restored |",
        "|---|---|---|",
        *rows,
        "",
    ])


if __name__ == "__main__":
    name, file = sys.argv[1], pathlib.Path(sys.argv[2])
    torch.set_num_threads(2)
    chosen, (trained, kept) = RECIPES[name], checkpoints.load(name)
    write(trained, file)
    file.with_suffix(".md").write_text(card(chosen, trained, kept))
