#!/usr/bin/env bash
# Rewrites the expected hidutil argument lists from the code as it is now. Run it only after
# changing what is handed to the system on purpose, and read the diff before committing it.
set -euo pipefail
cd "$(dirname "$0")/../../../.."
cmake --preset default >/dev/null
cmake --build --preset default --target quorvane_tests
QUORVANE_UPDATE_GOLDEN=1 build/default/tests/quorvane_tests --gtest_filter='HidutilGolden.*'
git diff --stat -- tests/tools/keyboard/golden
