#!/usr/bin/env bash
# Drives the built `quorvane` binary on a temporary store, as a user would.
set -u
quorvane="$1"
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
# Tools open their data folders when they are built; never the user's own.
export HOME="$dir/home" XDG_DATA_HOME="$dir/data"
mkdir -p "$HOME"
store="$dir/preferences.json"
failures=0
check() { # description, expected status, command...
    local what="$1" expected="$2"; shift 2
    "$@" >"$dir/out" 2>"$dir/err"
    local status=$?
    if [ "$status" -ne "$expected" ]; then
        echo "FAIL: $what: status $status, expected $expected"; cat "$dir/err"; failures=$((failures + 1))
    fi
}

check "tools" 0 "$quorvane" --prefs "$store" tools
[ "$(wc -l <"$dir/out")" -eq 68 ] || { echo "FAIL: tools should list 68 lines"; failures=$((failures + 1)); }
head -n 1 "$dir/out" | grep -q '^stop-focus-stealing ' || { echo "FAIL: first tool"; failures=$((failures + 1)); }
check "tools --json" 0 "$quorvane" --prefs "$store" tools --json
check "unknown tool" 2 "$quorvane" --prefs "$store" enable no-such-tool
[ "$(wc -l <"$dir/err")" -eq 1 ] || { echo "FAIL: one line on stderr"; failures=$((failures + 1)); }
[ ! -e "$store" ] || { echo "FAIL: a refusal wrote the store"; failures=$((failures + 1)); }
printf '{"broken": ' >"$store"
check "corrupt store" 2 "$quorvane" --prefs "$store" tools
[ "$(cat "$store")" = '{"broken": ' ] || { echo "FAIL: corrupt store was touched"; failures=$((failures + 1)); }
XDG_CONFIG_HOME="$dir/config" check "default store" 0 "$quorvane" controls
for id in app-volume headphone-mic output-lock mic-lock mic-mute; do
    check "settings $id" 0 "$quorvane" --prefs "$dir/settings.json" settings "$id"
done
check "help" 0 "$quorvane" --help
rm -f "$store"
check "enable a preference tool" 0 "$quorvane" --prefs "$store" enable show-hidden-files
grep -q '"AppleShowAllFiles": true' "$dir/com.apple.finder.json" || { echo "FAIL: Finder's domain not written"; failures=$((failures + 1)); }
check "disable a preference tool" 0 "$quorvane" --prefs "$store" disable show-hidden-files
grep -q 'AppleShowAllFiles' "$dir/com.apple.finder.json" && { echo "FAIL: Finder's domain not put back"; failures=$((failures + 1)); }

if [ "$failures" -eq 0 ]; then echo "command end to end: all checks passed"; fi
exit "$failures"
