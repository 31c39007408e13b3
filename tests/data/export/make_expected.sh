#!/bin/sh
# Writes the expected list exports from their readable UTF-8 sources in source/: code page 932
# through glibc's iconv, with CR LF line ends, as the export writes them. Every line of a source
# ends in ", " (comma, blank): the closing comma of the last field and the blank of each line.
set -eu
cd "$(dirname "$0")"
export LC_ALL=C
for name in view1 view2; do
    iconv -f UTF-8 -t CP932 "source/$name.utf8" | sed 's/$/\r/' > "$name.csv"
done
