#!/usr/bin/env bash
# Compares a page with what the commands in its console blocks really answer. They run one after the
# other in a copy of the examples, so that a page is one session; behind each "$ " line stands all
# that it prints. The differences are a patch that brings the page up to date.
#
# usage: session.sh PAGE FOLDER_OF_QDF
set -euo pipefail

page=$(realpath "$1")
PATH=$(realpath "$2"):$PATH
examples=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../../examples")
temp=$(mktemp -d)
trap 'rm -rf "$temp"' EXIT
cp -r "$examples/." "$temp"
cd "$temp"

# The page, with the answers anew.
session() {
  local inside='' fence='```' line
  while IFS= read -r line; do
    case $line in
      "$fence"console) inside=yes ;;
      "$fence") inside='' ;;
    esac
    if [[ ! $inside || $line == "$fence"* || $line == '$ '* ]]; then printf '%s\n' "$line"; fi
    if [[ $inside && $line == '$ '* ]]; then bash -c "${line#\$ }" 2>&1 </dev/null || true; fi
  done <"$page"
}

diff -u "$page" <(session)
