#!/usr/bin/env bash
# OdbcSelect against the driver's own cost. Usage: odbc_bench.sh BENCHDIR [N]
# (BENCHDIR holds odbc_bench and odbc_driver_bench).
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
bin=$1
n=${2:-100000}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$here/../tests/odbc/odbc_env.sh" sqlite "$work"
export ODBCSYSINI=$work ODBCINI=$work/odbc.ini LC_ALL=C.UTF-8
declare -A v
while read -r k x; do v[$k]=$x; done < <("$bin/odbc_driver_bench" MorvixSqlite "$n" "$work/driver.out")
while read -r k x; do v[$k]=$x; done < <("$bin/odbc_bench" MorvixSqlite "$work/morvix.out")
printf 'rows %s x 5 columns: driver alone %s ns/row, OdbcSelect %s ns/row (%s rows/s), ratio %.2f\n' \
    "${v[morvix_rows]}" "${v[driver_ns_per_row]}" "${v[morvix_ns_per_row]}" "${v[morvix_rows_per_s]}" \
    "$(echo "${v[morvix_ns_per_row]} / ${v[driver_ns_per_row]}" | bc -l)"
