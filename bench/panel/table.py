"""Runs the panel benchmark and prints how long a person waits, and how that grows with the list.

usage: table.py FOLDER_OF_PROGRAMS [--quick]
"""

import json
import statistics
import subprocess
import sys

OPENING_GOAL = 300  # milliseconds
KEY_GOAL = 16       # milliseconds: one picture of a screen with 60 a second


def measure(program, quick):
    options = ["--benchmark_format=json", "--benchmark_repetitions=%d" % (1 if quick else 5),
               "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=%s" % (0.05 if quick else 0.3)]
    output = subprocess.run([program, *options], check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
    times = {}
    for run in json.loads(output)["benchmarks"]:
        if run["run_type"] == "iteration":
            if run.get("error_occurred"):
                sys.exit("%s: %s" % (run["name"], run["error_message"]))
            times.setdefault(run["run_name"].split("/min_time")[0], []).append(run["real_time"])
    return {name: statistics.median(values) for name, values in times.items()}


def main(program, quick):
    times = measure(program, quick)
    print("| milliseconds until there is | | goal | of the goal |")
    print("|---|---:|---:|---:|")
    for name, words in (("openPanel", "the panel, of a module that is loaded"),
                        ("openWindow", "the window, with module and panel")):
        print("| %s | %.0f | %d | %.2f |" % (words, times[name], OPENING_GOAL, times[name] / OPENING_GOAL))
    print()
    print("| milliseconds a key, with tracks in the list | 10 | 100 | 1,000 | 10,000 | 10,000 : 10 | of %d ms |" % KEY_GOAL)
    print("|---|---:|---:|---:|---:|---:|---:|")
    for what in ("song title of a single", "album title of an album"):
        row = [times["typeKey/%s/%d" % (what, size)] for size in (10, 100, 1000, 10000)]
        print("| %s | %s | %.1f | %.2f |" % (what, " | ".join("%.2f" % time for time in row), row[3] / row[0],
                                           row[3] / KEY_GOAL))


main(sys.argv[1] + "/panel_bench", "--quick" in sys.argv[2:])
