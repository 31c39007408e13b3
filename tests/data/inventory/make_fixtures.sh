#!/bin/sh
# Writes the inventory fixtures from their readable UTF-8 sources in source/: code page 932
# through glibc's iconv (the converter the program itself uses), with CR LF line ends as the
# inventory tool writes them. ja_pc03.txt keeps LF line ends and another extension on purpose.
set -eu
cd "$(dirname "$0")"
export LC_ALL=C
crlf() { iconv -f UTF-8 -t CP932 "source/$1.utf8" | sed 's/$/\r/' > "$2"; }
lf() { iconv -f UTF-8 -t CP932 "source/$1.utf8" > "$2"; }
crlf ja_pc01 ja_pc01.csv
crlf en_pc02 en_pc02.csv
lf ja_pc03 ja_pc03.txt
crlf header_only header_only.csv
crlf bad_header bad_header.csv
crlf bad_header_case bad_header_case.csv
