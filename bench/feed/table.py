"""Runs the news feed's benchmark and prints what each entry costs in feeds of different lengths.

usage: table.py FOLDER_OF_PROGRAMS [--quick]
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from runs import measure, medians


def main(program, quick):
    costs = medians(measure(program, quick), lambda run: run["real_time"])
    print("| microseconds an entry, in a feed of | 100 | 1,000 | 1,000 : 100 | 1,000 as a whole |")
    print("|---|---:|---:|---:|---:|")
    for what, sizes in costs.items():
        each = {size: 1000 * cost / size for size, cost in sizes.items()}
        print("| %s | %.1f | %.1f | %.2f | %.1f ms |"
              % (what, each[100], each[1000], each[1000] / each[100], sizes[1000]))


main(sys.argv[1] + "/feed_bench", "--quick" in sys.argv[2:])
