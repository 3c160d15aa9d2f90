#!/usr/bin/env bash
# EssaiePaquet.sh [BUILD]: makes the packages of a release build and tries them. The Debian package goes into a clean root of the
# distribution, calculates and starts there for a plain user, and leaves nothing behind when it is removed but the user's data; the
# archive is unpacked in a folder of its own, and does the same there.
# Needs to be root, or sudo; what the root is made of comes from where this machine has its own packages from.
set -euo pipefail
cd "$(dirname "$0")/.."
construction=$(realpath "${1:-build/release}")
sudo=
[ "$(id -u)" -eq 0 ] || sudo=sudo
export LC_ALL=C.UTF-8
unset QT_QPA_PLATFORM # the windows are to be seen on a display

etape() { echo "== $*"; }
echoue() { echo "FAILED: $*" >&2; exit 1; }

travail=$(mktemp -d)
racine=$travail/racine
ecran=
termine() {
    [ -z "$ecran" ] || kill "$ecran" 2>/dev/null || true
    $sudo rm -rf --one-file-system "$travail"
}
trap termine EXIT
chmod 755 "$travail"

# Runs a command in the root; what is mounted for it goes with it.
dans() {
    $sudo unshare --mount --pid --fork --kill-child bash -c \
        'racine=$1; shift; mount -t proc proc "$racine/proc"; exec chroot "$racine" "$@"' - "$racine" "$@"
}
# The same for the plain user of the root.
par_utilisateur() {
    dans setpriv --reuid=1000 --regid=1000 --clear-groups env -i --chdir=/home/essai \
        PATH=/usr/bin:/bin LANG=C.UTF-8 HOME=/home/essai "$@"
}
sur_ecran() { par_utilisateur DISPLAY="$DISPLAY" "$@"; }
# What stands in the root, but for the user's files and what the package manager notes of its own work.
inventaire() {
    $sudo find "$racine" -xdev -printf '%P %y %m %l\n' |
        grep -vE '^(home/essai|tmp|proc|var/(log|cache|lib/(dpkg|apt)))[/ ]' | sort
}
fenetres() {
    xwininfo -root -tree -display "$DISPLAY" | grep '("velorin" "Velorin")' || true
}
# montre CHECK COMMAND...: starts the program on a display of its own, waits for its main window and for no box in front of it,
# and runs a check beside it.
montre() {
    local controle=$1 programme
    exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x900x24 -ac -nolisten tcp 2>/dev/null)
    ecran=$!
    read -r -u 3 numero
    export DISPLAY=:$numero
    "${@:2}" >"$travail/sortie" 2>&1 &
    programme=$!
    for _ in $(seq 100); do
        [ -z "$(fenetres)" ] || break
        sleep 0.1
    done
    sleep 1
    fenetres >"$travail/fenetres"
    cat "$travail/fenetres"
    [ "$(grep -c . "$travail/fenetres")" = 1 ] || echoue "not the main window alone: $(cat "$travail/sortie")"
    grep -q '"Velorin - ' "$travail/fenetres" || echoue "a box in the place of the main window"
    $controle
    # Without its display the program ends.
    kill "$ecran"
    wait "$programme" || true
    ecran=
}

etape "files of the desktop"
desktop-file-validate paquet/velorin.desktop
appstreamcli validate --no-net paquet/*.metainfo.xml

etape "packages"
rm -rf "$construction/paquets"
(cd "$construction" && cpack) 2>&1 | grep generated
deb=$(ls "$construction"/paquets/*.deb)
archive=$(ls "$construction"/paquets/*.tar.gz)
version=$(dpkg-deb -f "$deb" Version)
[ "$(dpkg-parsechangelog -l paquet/changelog -S Version)" = "$version" ] || echoue "paquet/changelog is not of $version"

etape "lintian"
lintian --allow-root --fail-on error,warning "$deb"

etape "a clean root"
distribution=$(. /etc/os-release && echo "$VERSION_CODENAME")
apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' | sort -u |
    $sudo mmdebstrap --quiet --variant=apt --include=desktop-file-utils,shared-mime-info "$distribution" "$racine" -
# The way to the packages is that of this machine.
$sudo cp --remove-destination "$(realpath /etc/resolv.conf)" "$racine/etc/resolv.conf"
apt-config dump Acquire | $sudo tee "$racine/etc/apt/apt.conf.d/90machine" >/dev/null
echo 'force-unsafe-io' | $sudo tee "$racine/etc/dpkg/dpkg.cfg.d/essai" >/dev/null
echo 'APT::Install-Recommends "false";' | $sudo tee "$racine/etc/apt/apt.conf.d/91essai" >/dev/null
dans useradd --uid 1000 --create-home essai
$sudo cp "$deb" "$racine/tmp/velorin.deb"
export DEBIAN_FRONTEND=noninteractive
dans apt-get update -qq
dans apt-get satisfy -qq -y "$(dpkg-deb -f "$deb" Depends)" >"$travail/sortie" 2>&1 || echoue "$(cat "$travail/sortie")"
inventaire >"$travail/avant"

etape "installed"
dans dpkg -i /tmp/velorin.deb
grep -q application/x-velorin-ang "$racine/usr/share/applications/mimeinfo.cache" || echoue "no program for a study"
for fichier in "$racine"/usr/share/velorin/Profils/*.{Ang,Lin,Cyl,Osc,Cjg,Ine}; do
    grep -qi ":application/x-velorin-.*:\*\.${fichier##*.}$" "$racine/usr/share/mime/globs2" || echoue "no type for $fichier"
done

etape "calculated and started by a plain user"
[ "$(par_utilisateur velorin --version)" = "Velorin ${version%-*}" ] || echoue "not the version that was installed"
par_utilisateur velorin-batch etude /usr/share/velorin/Profils/Exemple.Ang --resume >"$travail/installe.json"
! par_utilisateur test -e .local || echoue "a reader wrote into the user's folder"
montre true sur_ecran velorin /usr/share/velorin/Profils/Exemple.Ang
for fichier in BaseDatos.Mdb CameAng.cfg; do
    par_utilisateur test -s ".local/share/velorin/$fichier" || echoue "the first start left no $fichier"
done
par_utilisateur velorin-batch etude /usr/share/velorin/Profils/Exemple.Ang --resume | cmp - "$travail/installe.json"

etape "removed"
dans dpkg --purge velorin
inventaire >"$travail/apres"
diff "$travail/avant" "$travail/apres" || echoue "the removal left something behind, or took too much"
par_utilisateur test -s .local/share/velorin/BaseDatos.Mdb || echoue "the removal took the user's data"

etape "the archive, unpacked anywhere"
dossier="$travail/un dossier"
mkdir "$dossier"
tar -xzf "$archive" -C "$dossier" --strip-components=1
"$dossier/velorin-batch" etude "$dossier/Profils/Exemple.Ang" --resume >"$travail/archive.json"
bibliotheques_du_dossier() {
    local cartes
    cartes=$(cat "/proc/$programme/maps")
    grep -q "$dossier/plugins/platforms/libqxcb.so" <<<"$cartes" || echoue "no platform out of the archive"
    ! grep -E 'libQt6|libsqlcipher' <<<"$cartes" | grep -v "$dossier" || echoue "libraries of the machine"
}
montre bibliotheques_du_dossier env HOME="$travail" "$dossier/velorin"
[ ! -e "$travail/.local/share/velorin" ] || echoue "a copy that can be written to wrote elsewhere"
sed "s#$dossier#/usr/share/velorin#" "$travail/archive.json" | cmp - "$travail/installe.json"
etape "the packages are good: $(basename "$deb"), $(basename "$archive")"
