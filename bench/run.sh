#!/usr/bin/env bash
# Runs every benchmark and prints one Markdown table: per workload the time of
# Morvix, Lua 5.4 (locals), Tcl 8.6 (in a proc) and Python 3 (in a function)
# and Morvix's ratio to each; the instructions per int-loop turn, counted with
# valgrind's callgrind when it is installed (repeatable on a busy machine,
# unlike the times); and the XML documents, which have no counterpart.
# Usage: run.sh BUILD_DIR [N]   (BUILD_DIR: the optimised build, N: loop turns)
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$1
n=${2:-1000000}
mxbench=$build/bench/mxbench
startup=$build/bench/startup
morvix=$build/tools/morvix
lua=/usr/bin/lua5.4 tcl=/usr/bin/tclsh8.6 python=/usr/bin/python3
workloads=(int float text call builtin)

declare -A mx lu tc py
while read -r k v; do mx[$k]=$v; done < <("$mxbench" "$n")
while read -r k v; do lu[$k]=$v; done < <("$lua" "$here/loops/loops.lua" "$n")
while read -r k v; do tc[$k]=$v; done < <("$tcl" "$here/loops/loops.tcl" "$n")
while read -r k v; do py[$k]=$v; done < <("$python" "$here/loops/loops.py" "$n")

# Start-up: an empty program as a whole process, start to exit.
k=50
empty=$(mktemp)
mx[startup]=$("$startup" $k "$morvix" -e '')
lu[startup]=$("$startup" $k "$lua" "$empty")
tc[startup]=$("$startup" $k "$tcl" "$empty")
py[startup]=$("$startup" $k "$python" "$empty")
rm -f "$empty"

# Instructions per int-loop turn: the count of 2T turns less the count of T
# turns, divided by T, so start-up and loading drop out.
count() {  # count COMMAND... -> instructions of the whole run
    valgrind --tool=callgrind --callgrind-out-file=/dev/null "$@" 2>&1 >/dev/null |
        sed -n 's/.*Collected : \([0-9]*\).*/\1/p'
}
perturn() {  # perturn T COMMAND... (the command takes "N int" at its end)
    local t=$1 a b
    shift
    a=$(count "$@" "$t" int)
    b=$(count "$@" $((2 * t)) int)
    echo $(((b - a) / t))
}
declare -A ins
if command -v valgrind >/dev/null; then
    ins[mx]=$(perturn 20000 "$mxbench")
    ins[lu]=$(perturn 200000 "$lua" "$here/loops/loops.lua")
    ins[tc]=$(perturn 100000 "$tcl" "$here/loops/loops.tcl")
    ins[py]=$(perturn 100000 "$python" "$here/loops/loops.py")
fi

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { if (b > 0) printf "%.1f", a / b; else printf "-" }'; }
row() {  # row LABEL MORVIX LUA TCL PYTHON
    printf '| %s | %s | %s | %s | %s | %s | %s | %s |\n' "$1" "$2" "$3" "$4" "$5" \
        "$(ratio "$2" "$3")" "$(ratio "$2" "$4")" "$(ratio "$2" "$5")"
}

echo "Loops of $n turns (ns per turn), start-up in ms; ratio = Morvix / other (below 1: Morvix is faster)."
echo
echo '| Workload | Morvix | Lua 5.4 | Tcl 8.6 | Python 3 | × Lua | × Tcl | × Python |'
echo '|---|---|---|---|---|---|---|---|'
for w in "${workloads[@]}"; do row "$w loop (ns)" "${mx[$w]}" "${lu[$w]}" "${tc[$w]}" "${py[$w]}"; done
row "start-up (ms)" "${mx[startup]}" "${lu[startup]}" "${tc[startup]}" "${py[startup]}"
if [ -n "${ins[mx]:-}" ]; then
    row "int loop (instructions per turn)" "${ins[mx]}" "${ins[lu]}" "${ins[tc]}" "${ins[py]}"
else
    echo '| int loop (instructions per turn) | valgrind not installed | | | | | | |'
fi

# XML: ns per element for 100 000 elements; growth = per-element time at
# 200 000 over 100 000, near 1 while every step stays linear.
"$build/bench/xml_bench" 100000 | awk '
    $2 == "growth-2x" { g[$1, "build"] = $4; g[$1, "write"] = $6; g[$1, "load"] = $8; next }
    { t[$1, $2] = $4 }
    END {
        split("flat deep", shapes, " "); split("build write load", steps, " ")
        for (i = 1; i <= 2; i++) for (j = 1; j <= 3; j++) {
            s = shapes[i]; p = steps[j]
            printf "| XML %s %s (ns per element, growth 2x: %s) | %s | | | | | | |\n", s, p, g[s, p], t[s, p]
        }
    }'

# The cost curve: ns per turn of the int loop for 10^3, 10^5 and 10^7 turns,
# and ns per statement "s = s + i;" for a loop body of 1 000 and of 100 000
# lines, in a later turn (run from the cache) and in the first (read from the
# text); flat means the cache adds no growth. Then the cache's memory.
echo
echo '| Cost curve | ns per turn or statement |'
echo '|---|---|'
"$mxbench" curve | awk '
    $1 ~ /^loop-/ { sub("loop-", "", $1); printf "| int loop, %s turns | %s |\n", $1, $2 }
    $1 ~ /^lines-/ { sub("lines-", "", $1); printf "| loop body of %s lines: later turns / first turn | %s / %s |\n", $1, $2, $3 }
    $1 ~ /^cache-/ { sub("cache-", "", $1); c[$1] = sprintf("%.1f MB for %s entries (%.0f bytes each)", $2 / 1048576, $3, $2 / $3) }
    END { for (k in c) printf "| statement cache, %s-line macro | %s |\n", k, c[k] }'
