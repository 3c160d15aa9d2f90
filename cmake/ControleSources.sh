#!/usr/bin/env bash
# Runs the checker of the code over the calculations. Reading the headers is most of its work: the files of a room are read as
# one, the names of their anonymous namespaces being told apart; rooms where they are not are read file by file.
set -euo pipefail
cd "$(dirname "$0")/.."

SANS_CONTROLE="app batch bench docs tests widgets" # windows and tests: the compilers' warnings are what they get
PAR_FICHIER="studies data/outils"
ENSEMBLES=build/controle
mkdir -p "$ENSEMBLES"
rm -f "$ENSEMBLES"/*.cpp
for PIECE in $(git ls-files '*/*.cpp' ':!*/*/*' | cut -d/ -f1 | sort -u); do
    case " $SANS_CONTROLE $PAR_FICHIER " in *" $PIECE "*) continue ;; esac
    printf '#include "%s"\n' "$PIECE"/*.cpp >"$ENSEMBLES/$PIECE.cpp"
done
SEULS=$(for PIECE in $PAR_FICHIER; do ls "$PIECE"/*.cpp; done)
# The largest first, so that none is left alone at the end.
{ ls -S "$ENSEMBLES"/*.cpp && echo "$SEULS"; } |
    xargs -P "$(nproc)" -I{} clang-tidy --quiet {} -- -std=c++20 -I"$PWD" -isystem /usr/include/sqlcipher -DSQLITE_HAS_CODEC 2>/dev/null
