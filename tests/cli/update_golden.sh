#!/usr/bin/env bash
# Rewrites the golden files from what the code prints now. Run it on purpose after changing a
# renderer, then read the diff before committing it.
set -euo pipefail
cd "$(dirname "$0")/../.."
cmake --build --preset default --target quorvane_tests
QUORVANE_UPDATE_GOLDEN=1 build/default/tests/quorvane_tests --gtest_filter='*Golden*'
git diff --stat -- tests/cli/golden
