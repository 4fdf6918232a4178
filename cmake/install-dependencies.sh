#!/usr/bin/env bash
# Installs what building and testing Quorvane needs, and only what is missing: Debian's or
# Ubuntu's packages through apt-get (as root, or through sudo), Homebrew's formulae on macOS.
# Extra Debian package names given as arguments are installed too (the macOS-layer check adds
# its headers that way). Safe to run again: with everything present it changes nothing.
set -euo pipefail

debian_packages=(cmake make g++ clang libc++-dev libc++abi-dev googletest libgtest-dev
                 libgmock-dev libbenchmark-dev ccache libarchive-dev "$@")
brew_formulae=(cmake googletest google-benchmark ccache libarchive)

fail() {
    echo "install-dependencies: $*" >&2
    exit 1
}

if [ "$(uname -s)" = "Darwin" ]; then
    xcode-select -p >/dev/null 2>&1 ||
        fail "the Xcode command-line tools are missing; run 'xcode-select --install' first"
    command -v brew >/dev/null 2>&1 ||
        fail "Homebrew is missing; install it from https://brew.sh, then run this again"
    missing=()
    for formula in "${brew_formulae[@]}"; do
        brew list --formula "$formula" >/dev/null 2>&1 || missing+=("$formula")
    done
    if [ "${#missing[@]}" -gt 0 ]; then
        echo "Installing with Homebrew: ${missing[*]}"
        brew install "${missing[@]}"
    fi
    exit 0
fi

command -v dpkg >/dev/null 2>&1 || {
    # Not Debian or Ubuntu: say what is needed and let the build report what is still missing.
    echo "install-dependencies: not a Debian or Ubuntu system; install CMake 3.25+, g++ 12+," \
         "clang 14+ with libc++, GoogleTest and Google Benchmark yourself" >&2
    exit 0
}

missing=()
for package in "${debian_packages[@]}"; do
    # A package removed with its configuration left behind reports a status other than installed.
    status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    [ "$status" = "install ok installed" ] || missing+=("$package")
done
[ "${#missing[@]}" -eq 0 ] && exit 0

if [ "$(id -u)" -eq 0 ]; then
    as_root=()
elif command -v sudo >/dev/null 2>&1; then
    as_root=(sudo)
    echo "Installing ${missing[*]} needs administrator rights; sudo may ask for your password."
else
    fail "missing ${missing[*]}; install them as root: apt-get install ${missing[*]}"
fi

echo "Installing ${missing[*]}"
"${as_root[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
