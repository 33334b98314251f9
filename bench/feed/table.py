"""Runs the news feed's benchmark and prints what each entry costs in feeds of different lengths.

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
    return [run for run in json.loads(output)["benchmarks"] if run["run_type"] == "iteration"]


def medians(runs):
    """{what: {number of entries: milliseconds}}"""
    costs = {}
    for run in runs:
        what, size = run["run_name"].split("/min_time")[0].rsplit("/", 1)
        costs.setdefault(what, {}).setdefault(int(size), []).append(run["real_time"])
    return {what: {size: statistics.median(values) for size, values in sizes.items()}
            for what, sizes in costs.items()}


def main(program, quick):
    costs = medians(measure(program, quick))
    print("| microseconds an entry, in a feed of | 100 | 1,000 | 1,000 : 100 | 1,000 as a whole |")
    print("|---|---:|---:|---:|---:|")
    for what, sizes in costs.items():
        each = {size: 1000 * cost / size for size, cost in sizes.items()}
        print("| %s | %.1f | %.1f | %.2f | %.1f ms |"
              % (what, each[100], each[1000], each[1000] / each[100], sizes[1000]))


main(sys.argv[1] + "/feed_bench", "--quick" in sys.argv[2:])
