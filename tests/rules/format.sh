#!/bin/sh
# Every source is formatted as .clang-format says.
set -eu
cd "$1"
find framework auth release ui client module host sandbox tests bench tools docs/example \( -name '*.h' -o -name '*.cpp' \) -print0 |
    xargs -0 clang-format --dry-run --Werror
