#!/usr/bin/env bash
# Installs the Debian packages that the build and the tests need, those that are missing.
#   installe.sh [test]     with "test", also what only the tests and the checks need
set -euo pipefail
cd "$(dirname "$0")"
paquets=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-translations-l10n libgl-dev libfontconfig-dev libsqlcipher-dev nlohmann-json3-dev
         fonts-liberation fonts-dejavu-core)
if [ "${1:-}" = test ]; then
    paquets+=(libgtest-dev libbenchmark-dev clang-format clang-tidy git)
    paquets+=(dpkg-dev lintian desktop-file-utils appstream mmdebstrap xvfb x11-utils) # the packages and their trial
fi
manquants=()
for paquet in "${paquets[@]}"; do
    dpkg-query -W -f='${Status}' "$paquet" 2>/dev/null | grep -q 'install ok installed' || manquants+=("$paquet")
done
[ ${#manquants[@]} -eq 0 ] && exit 0
sudo=
[ "$(id -u)" -eq 0 ] || sudo=sudo
$sudo apt-get update -qq
$sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${manquants[@]}"
