#!/bin/sh
# Writes the expected exports of the licence windows from their readable UTF-8 sources in
# source/: code page 932 through glibc's iconv, with CR LF line ends, as the exports write them.
# Every grid line of a source ends in ", " (the closing comma of the last field and the blank of
# each line); the first line of a census-computers file is the application's name alone.
set -eu
cd "$(dirname "$0")"
export LC_ALL=C
for name in licences census census_computers census_computers_loc2; do
    iconv -f UTF-8 -t CP932 "source/$name.utf8" | sed 's/$/\r/' > "$name.csv"
done
