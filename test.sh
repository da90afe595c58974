#!/usr/bin/env bash
# ./test.sh: installs what is missing, builds everything with the sanitizers on, and passes every test.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"

./scripts/install-packages.sh
./scripts/check-includes.sh

strict=OFF
[ "${CI:-}" = true ] && strict=ON
cmake --preset debug -DTINTORA_WARNINGS_AS_ERRORS=$strict
cmake --build --preset debug
ctest --preset debug -j "$(nproc)"
