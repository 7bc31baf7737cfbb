#!/usr/bin/env bash
# Compares the interface of a library with the one described in apmqdf.abi: exported symbols, the
# order of virtual operations, the layout of the records. Or describes it anew, after a change that
# is meant:
#
#     abi.sh check|describe LIBRARY
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

describe() {
  abidw --suppressions "$here/ignored" --exported-interfaces-only --no-corpus-path \
    --no-comp-dir-path --no-show-locs --type-id-style hash "$1"
}

# The place of each virtual operation: abidiff finds it harmless when two of one type change theirs.
tables() {
  sed -nE "s/.* vtable-offset='([^']+)'.*/\1/; T; N; s/\n.* mangled-name='([^']+)'.*/ \1/; p" | sort -u
}

case $1 in
check)
  abidiff --suppressions "$here/ignored" "$here/apmqdf.abi" "$2"
  diff <(tables <"$here/apmqdf.abi") <(describe "$2" | tables)
  ;;
describe)
  describe "$2" >"$here/apmqdf.abi"
  ;;
esac
