#!/usr/bin/env bash
# Sets everything up on a Debian 12 machine and runs all tests: the checks of format and of the code, the tests as shipped,
# the packages in a clean root, then the tests with the address and undefined-behaviour sanitizers.
set -euo pipefail
cd "$(dirname "$0")"
./installe.sh test
export QT_QPA_PLATFORM=offscreen

git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror

# Said here, because ./run.sh leaves them out of the same build folder.
cmake --preset release -DVELORIN_TESTS=ON -DVELORIN_BENCH=ON >/dev/null
cmake --build --preset release -j "$(nproc)"
./cmake/ControleSources.sh
ctest --preset release --no-tests=error

./paquet/EssaiePaquet.sh build/release

cmake --preset sanitize -DVELORIN_TESTS=ON >/dev/null
cmake --build --preset sanitize -j "$(nproc)"
ctest --preset sanitize --no-tests=error
