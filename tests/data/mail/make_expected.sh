#!/bin/sh
# Writes the expected mail exports from their readable UTF-8 sources in source/: code page 932
# through glibc's iconv, with CR LF line ends, as the exports write them. The lines of the full
# lists end in ", " (the closing comma of the last field and the line's blank); the address books
# and beat-box lists end in their last field.
set -eu
cd "$(dirname "$0")"
export LC_ALL=C
for source in source/*.utf8; do
    name=$(basename "$source" .utf8)
    iconv -f UTF-8 -t CP932 "$source" | sed 's/$/\r/' > "$name.csv"
done
