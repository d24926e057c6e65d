#!/usr/bin/env python3
"""Writes data/filterData/likely_f_sel_combs.json: how often a combination of filters goes on to a further one.

The counts are a starting guess, not observations: each filter has a weight, and a filter that usually
belongs later in the order (noise before sharpness, size at the end) is likelier to follow.
"""
import itertools
import json
import pathlib

ORDER = ["EXPOSURE-All", "TEMPERATURE-All", "DENOISE-All", "SHARPEN-Subject", "SHARPEN-All", "FACE-", "TEXT-", "REMOVE-", "UPSCALE-"]
WEIGHT = {"EXPOSURE-All": 30, "TEMPERATURE-All": 18, "DENOISE-All": 90, "SHARPEN-Subject": 80, "SHARPEN-All": 35,
          "FACE-": 40, "TEXT-": 8, "REMOVE-": 22, "UPSCALE-": 60}


def count(sequence):
    value = 1.0
    for name in sequence:
        value *= WEIGHT[name] / 30
    for a, b in zip(sequence, sequence[1:]):
        value *= 1.0 if ORDER.index(a) < ORDER.index(b) else 0.25
    return round(1000 * value * 0.3 ** len(sequence))


def main():
    rows = []
    for length in (2, 3, 4):
        for sequence in itertools.permutations(ORDER, length):
            if len({name.split("-")[0] for name in sequence}) < length:
                continue
            n = count(sequence)
            if n >= 3:
                rows.append({"filters_combined": "[" + ", ".join(f"'{name}'" for name in sequence) + "]", "count": n})
    rows.sort(key=lambda row: (-row["count"], row["filters_combined"]))
    target = pathlib.Path(__file__).resolve().parent.parent / "data/filterData/likely_f_sel_combs.json"
    target.write_text("[\n" + ",\n".join(json.dumps(row) for row in rows) + "\n]\n")
    print(f"{len(rows)} rows")


if __name__ == "__main__":
    main()
