"""Runs the editing benchmark and prints what each track costs in lists of different lengths.

usage: table.py FOLDER_OF_PROGRAMS [--quick]
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from runs import measure, medians


def main(program, quick):
    print("| nanoseconds a track, in a list of | 100 | 1,000 | 10,000 | 10,000 : 100 |")
    print("|---|---:|---:|---:|---:|")
    for what, sizes in medians(measure(program, quick), lambda run: 1e9 / run["items_per_second"]).items():
        columns = " | ".join("%.0f" % sizes[size] for size in (100, 1000, 10000))
        print("| %s | %s | %.2f |" % (what, columns, sizes[10000] / sizes[100]))


main(sys.argv[1] + "/editing_bench", "--quick" in sys.argv[2:])
