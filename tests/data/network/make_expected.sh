#!/bin/sh
# Writes the expected exports of the network device window and the printer list from their
# readable UTF-8 sources in source/: code page 932 through glibc's iconv, CR LF line ends. Every
# line of a source ends in ", " (comma, blank): the closing comma of the last field and the
# blank of each line.
set -eu
cd "$(dirname "$0")"
export LC_ALL=C
for name in network printers; do
    iconv -f UTF-8 -t CP932 "source/$name.utf8" | sed 's/$/\r/' > "$name.csv"
done
