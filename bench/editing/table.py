"""Runs the editing benchmark and prints what each track costs in lists of different lengths.

usage: table.py FOLDER_OF_PROGRAMS [--quick]
"""

import json
import statistics
import subprocess
import sys


def measure(program, quick):
    options = ["--benchmark_format=json", "--benchmark_enable_random_interleaving=true",
               "--benchmark_repetitions=%d" % (1 if quick else 5)]
    if quick:
        options.append("--benchmark_min_time=0.05")
    output = subprocess.run([program, *options], check=True, stdout=subprocess.PIPE).stdout
    runs = [run for run in json.loads(output)["benchmarks"] if run["run_type"] == "iteration"]
    return sorted(runs, key=lambda run: run["family_index"])


def medians(runs):
    """{what: {number of tracks: nanoseconds a track}}"""
    costs = {}
    for run in runs:
        what, size = run["run_name"].split("/min_time")[0].rsplit("/", 1)
        costs.setdefault(what, {}).setdefault(int(size), []).append(1e9 / run["items_per_second"])
    return {what: {size: statistics.median(values) for size, values in sizes.items()}
            for what, sizes in costs.items()}


def main(program, quick):
    print("| nanoseconds a track, in a list of | 100 | 1,000 | 10,000 | 10,000 : 100 |")
    print("|---|---:|---:|---:|---:|")
    for what, sizes in medians(measure(program, quick)).items():
        columns = " | ".join("%.0f" % sizes[size] for size in (100, 1000, 10000))
        print("| %s | %s | %.2f |" % (what, columns, sizes[10000] / sizes[100]))


main(sys.argv[1] + "/editing_bench", "--quick" in sys.argv[2:])
