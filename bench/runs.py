"""Runs a benchmark program, for the tables of it."""

import json
import statistics
import subprocess


def measure(program, quick):
    """The single runs, in the order of the program."""
    options = ["--benchmark_format=json", "--benchmark_enable_random_interleaving=true",
               "--benchmark_repetitions=%d" % (1 if quick else 5)]
    if quick:
        options.append("--benchmark_min_time=0.05")
    output = subprocess.run([program, *options], check=True, stdout=subprocess.PIPE).stdout
    runs = [run for run in json.loads(output)["benchmarks"] if run["run_type"] == "iteration"]
    return sorted(runs, key=lambda run: run["family_index"])


def medians(runs, cost):
    """{what: {size: median of what `cost` says of its runs}}"""
    costs = {}
    for run in runs:
        what, size = run["run_name"].split("/min_time")[0].rsplit("/", 1)
        costs.setdefault(what, {}).setdefault(int(size), []).append(cost(run))
    return {what: {size: statistics.median(values) for size, values in sizes.items()}
            for what, sizes in costs.items()}
