#!/usr/bin/env python3
"""Writes data/filterData/likely_f_sel_combs.json: which filter follows which combination of filters.

There are no usage data yet. The counts are a prior that is stated here: each filter has a weight, and one that usually
belongs earlier (noise before sharpness, size at the end) is less likely to come late. What the table must have is a row
for every combination that the suggestion card can ask about, since combinations are ordered and one that is missing
silences the card. `combinations` says which these are.
"""
import itertools
import json
import pathlib

# In the order in which filters are run.
ORDER = ["EXPOSURE", "TEMPERATURE", "DENOISE", "SHARPEN", "FACE", "TEXT", "REMOVE", "UPSCALE"]
WEIGHT = {"DENOISE": 100, "SHARPEN": 66, "UPSCALE": 30, "FACE": 24, "EXPOSURE": 36, "TEMPERATURE": 24, "REMOVE": 10, "TEXT": 6}

# What a new filter works on: sharpening has a preference for it.
PREFERRED = ["Subject", "All", "Background", "Landscape", "Sky", "Portrait", "none"]
ADDED = {name: ["All"] for name in ("EXPOSURE", "TEMPERATURE", "DENOISE")} | {"SHARPEN": PREFERRED}
# What a person may choose afterwards.
CHOSEN = ["All", "Subject", "Background", "Landscape", "Sky", "none", ""]
SELECTIVE = ["EXPOSURE", "TEMPERATURE", "DENOISE", "SHARPEN"]

MOST_FILTERS = 4
# Not to be had on every picture: one without faces, one that is large already, one from a camera's raw file.
DEPENDENT = {"FACE", "UPSCALE", "DENOISE"}


def token(name, subject=""):
    return f"{name}-{subject}"


def added(name):
    return [token(name, subject) for subject in ADDED.get(name, [""])]


def collapsed(filters):
    """What the card asks about: filters of a name together, a subject once, both sides of one as three."""
    groups = {}
    for name, subject in (one.split("-", 1) for one in filters):
        groups.setdefault(name, {})[subject] = True
    result = []
    for name, subjects in groups.items():
        if "Subject" in subjects and "Background" in subjects:
            subjects = ["Subject", "Background", "All"]
        result += [token(name, subject) for subject in subjects]
    return tuple(result)


def one_after_another(names, most):
    """Filters in any order, each as it is when it is added."""
    for length in range(most + 1):
        for chosen in itertools.permutations(names, length):
            yield from itertools.product(*map(added, chosen))


def combinations():
    """Every key, in an order that doesn't change from run to run."""
    names = [name for name in ORDER if name != "UPSCALE"]
    keys = {}

    def add(filters):
        keys[collapsed(filters)] = True

    # By suggestion or by hand. What is added twice is asked about once.
    for filters in one_after_another(names, MOST_FILTERS):
        add(filters)
    # Autopilot's own, which have no subject of their own until a person opens them, and what is added to these.
    for length in range(1, MOST_FILTERS + 1):
        for own in itertools.combinations(SELECTIVE, length):
            for more in one_after_another(names, MOST_FILTERS - length):
                add([token(name) for name in own] + list(more))
    # Two filters with subjects that a person chose.
    every = [token(name, subject) for name in SELECTIVE for subject in CHOSEN] + [token(name) for name in ("FACE", "TEXT", "REMOVE")]
    for length in (1, 2):
        for filters in itertools.product(every, repeat=length):
            add(filters)
    keys.pop((), None)
    return list(keys)


def likelihood(names, following):
    late = sum(ORDER.index(name) > ORDER.index(following) for name in names)
    return WEIGHT[following] * 0.7**late


def commonness(key):
    value = 1.0
    for one in key:
        name = one.split("-")[0]
        value *= WEIGHT[name] / 400 * (1 if one == added(name)[0] else 0.1)
    return value


def continuations(names):
    """The card shows three suggestions. The long combinations, which are most of the table, have no more rows than that."""
    likely = sorted((name for name in ORDER if name not in names), key=lambda name: -likelihood(names, name))
    chosen = likely[: 3 if len(names) == MOST_FILTERS else 4]
    if DEPENDENT.issuperset(chosen):
        chosen[-1] = next(name for name in likely if name not in DEPENDENT)
    return chosen


def rows():
    for key in combinations():
        names = list(dict.fromkeys(one.split("-")[0] for one in key))
        for following in continuations(names):
            count = max(1, round(1000 * commonness(key) * likelihood(names, following)))
            yield [*key, added(following)[0]], count


def main():
    lines = []
    for sequence, count in rows():
        text = "[" + ",".join(f"'{one}'" for one in sequence) + "]"
        lines.append(json.dumps({"filters_combined": text, "count": count}, separators=(",", ":")))
    target = pathlib.Path(__file__).resolve().parent.parent / "data/filterData/likely_f_sel_combs.json"
    target.write_text("[\n" + ",\n".join(lines) + "\n]\n")
    print(f"{len(combinations())} combinations, {len(lines)} rows")


if __name__ == "__main__":
    main()
