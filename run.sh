#!/usr/bin/env bash
# Sets everything up on a Debian 12 machine, builds, and starts Velorin. Without a display it calculates the shipped example
# study with the batch companion instead, and says where the results are.
set -euo pipefail
cd "$(dirname "$0")"
./installe.sh
cmake --preset release -DVELORIN_TESTS=OFF -DVELORIN_BENCH=OFF >/dev/null
cmake --build --preset release -j "$(nproc)"

dossier=build/release/velorin
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$dossier/velorin"
fi
resultats=build/Exemple.json
"$dossier/velorin-batch" etude "$dossier/Profils/Exemple.Ang" >"$resultats"
echo "No display: the example study Profils/Exemple.Ang was calculated; its results are in $resultats"
