#!/usr/bin/env bash
# check_cli.sh HOST... - the --check command of a host (morvix, or wine and
# mxrun.exe): every error of tests/kit/broken.mac as "FILE:LINE: MESSAGE" and
# exit status 1; every example macro clean with exit status 0;
# the example host's macro clean with that host's names (--host) only.
set -uo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
cd "$root"
failures=0
out=$("$@" --check tests/kit/broken.mac | tr -d '\r')
status=$?
expected="tests/kit/broken.mac:7: Variablenname fehlt
tests/kit/broken.mac:8: Funktion 'StrLen' hat zu viele Parameter
tests/kit/broken.mac:9: Es wurde das Zeichen '(' erwartet
tests/kit/broken.mac:10: Variable 'Frob' ist nicht deklariert
tests/kit/broken.mac:11: Das Schlüsselwort 'begin' ist hier nicht erlaubt
tests/kit/broken.mac:12: Es wurde das Zeichen ')' erwartet
tests/kit/broken.mac:15: Der Ausdruck '(count)' ist kein gültiger Operand
tests/kit/broken.mac:17: Unerwartetes Dateiende beim Lesen der Datei 'tests/kit/broken.mac'"
if [ "$status" != 1 ] || [ "$out" != "$expected" ]; then
    echo "check: broken.mac gave status $status and" >&2
    diff <(echo "$expected") <(echo "$out") >&2
    failures=1
fi
# The example host's macro with the names that host lends its macros.
out=$("$@" --check --host HOST_ANSWER --host HostLog=C[] --host Square=L*L examples/host/greet.mac | tr -d '\r')
status=$?
if [ "$status" != 0 ] || [ -n "$out" ]; then
    echo "check: greet.mac with the example host's names (status $status): $out" >&2
    failures=1
fi
out=$("$@" --check examples/host/greet.mac | tr -d '\r')
status=$?
if [ "$status" != 1 ] || ! grep -qx "examples/host/greet.mac:18: Variable 'Square' ist nicht deklariert" <<<"$out"; then
    echo "check: greet.mac without the host's names: $out" >&2
    failures=1
fi
# The case files' macros are checked by the native test (Check.EveryShippedMacro).
mapfile -t clean < <(find examples -name '*.mac' -not -path 'examples/host/*' | sort)
out=$("$@" --check "${clean[@]}" | tr -d '\r')
status=$?
if [ "$status" != 0 ] || [ -n "$out" ]; then
    echo "check: shipped macros are not clean (status $status):" >&2
    echo "$out" >&2
    failures=1
fi
exit $failures
