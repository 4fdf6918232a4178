#!/usr/bin/env bash
# Rewrites the golden render outputs from the code as it is now. Run it only after changing the
# sound on purpose, and listen to the new files before committing them.
set -euo pipefail
cd "$(dirname "$0")/../../.."
cmake --preset default >/dev/null
cmake --build --preset default --target quorvane_tests
QUORVANE_UPDATE_GOLDEN=1 build/default/tests/quorvane_tests --gtest_filter='EqRender.*Golden*'
