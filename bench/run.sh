#!/usr/bin/env bash
# Runs the loop benchmarks with mxbench, Lua 5.4 and Tcl 8.6 and prints the
# nanoseconds per loop turn and Morvix's ratio to each. Usage: run.sh MXBENCH [N]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
mxbench=$1
n=${2:-1000000}
declare -A mx lua tcl
while read -r k v; do mx[$k]=$v; done < <("$mxbench" "$n")
while read -r k v; do lua[$k]=$v; done < <(lua5.4 "$here/loops/loops.lua" "$n")
while read -r k v; do tcl[$k]=$v; done < <(tclsh8.6 "$here/loops/loops.tcl" "$n")
printf '%-6s %12s %12s %12s %10s %10s\n' loop "morvix ns" "lua ns" "tcl ns" "x lua" "x tcl"
for k in int float call; do
    printf '%-6s %12s %12s %12s %10.1f %10.1f\n' "$k" "${mx[$k]}" "${lua[$k]}" "${tcl[$k]}" \
        "$(echo "${mx[$k]} / ${lua[$k]}" | bc -l)" "$(echo "${mx[$k]} / ${tcl[$k]}" | bc -l)"
done
