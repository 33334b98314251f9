#!/bin/sh
# Runs one fuzz target for FUZZ_SECONDS (a minute) and says how many inputs it tried; when it fails, all that it said.
# The input at which it failed is in the working folder then. Usage: run.sh NAME PROGRAM [ARGUMENT…]
set -eu
name=$1
shift
if ! "$@" "-max_total_time=${FUZZ_SECONDS:-60}" -timeout=10 -max_len=65536 -rss_limit_mb=1024 -print_final_stats=1 \
    >log 2>&1; then
    cat log
    echo "fuzz $name: failed; the input is in $PWD"
    exit 1
fi
echo "fuzz $name: $(sed -n 's/^stat::number_of_executed_units: *//p' log) inputs"
