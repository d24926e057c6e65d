"""Trains several networks side by side on an accelerator, in lanes; each lane trains its networks one after another.

Usage: together.py LANE... with LANE as NAME:MINUTES:BATCH[:START][,...]
Logs lie below build/train/logs.
"""
import os
import pathlib
import subprocess
import sys
import threading

from photographs import CACHE, pool
from recipes import RECIPES

LOGS = CACHE / "logs"


def _run(lane):
    for part in lane.split(","):
        name, minutes, batch, *start = part.split(":")
        command = [sys.executable, str(pathlib.Path(__file__).with_name("train.py")), name, "--minutes", minutes, "--batch", batch]
        command += ["--start", *start] if start else []
        with open(LOGS / f"{name}.log", "w") as log:
            subprocess.run(command, stdout=log, stderr=subprocess.STDOUT, env={**os.environ, "PYTHONUNBUFFERED": "1"})


if __name__ == "__main__":
    LOGS.mkdir(parents=True, exist_ok=True)
    lanes = sys.argv[1:]
    names = [part.split(":")[0] for lane in lanes for part in lane.split(",")]
    for source in {source for name in names for source, _ in RECIPES[name].sources}:
        pool(source)
    threads = [threading.Thread(target=_run, args=(lane,)) for lane in lanes]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
