#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
#
# guides.sh TOOL STREAM...: other programs read the guides and playlists that the tool writes. Exit status 77 where they
# are missing.
set -euo pipefail
dtd=/usr/share/xmltv/xmltv.dtd
for program in tv_validate_file tv_sort tv_grep ffprobe; do
  command -v "$program" > /dev/null || exit 77
done
tool=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

for stream in "${@:2}"; do
  [[ -f $stream ]] || continue
  "$tool" xmltv --quiet "$stream" > "$scratch/guide.xml"
  tv_validate_file --dtd-file="$dtd" "$scratch/guide.xml"
  programmes=$(grep -c '<programme ' "$scratch/guide.xml")
  tv_sort "$scratch/guide.xml" > "$scratch/sorted.xml" 2> /dev/null  # it tells of events that overlap
  tv_grep --on-after 19700101 "$scratch/guide.xml" > "$scratch/found.xml"
  for kind in sorted found; do
    [[ $(grep -c '<programme ' "$scratch/$kind.xml") == "$programmes" ]] || { echo "$kind: not $programmes"; exit 1; }
  done
  "$tool" m3u --quiet "$stream" > "$scratch/list.m3u"
  while read -r program && read -r address; do
    ffprobe -v quiet -show_entries program=program_id -of csv "$address" > "$scratch/programs"
    grep -q "^program,${program#*=}," "$scratch/programs" || { echo "$address has no $program"; exit 1; }
  done < <(grep -v '^#EXTM3U\|^#EXTINF' "$scratch/list.m3u")
  echo "$stream: $programmes programmes, $(grep -c '^#EXTINF' "$scratch/list.m3u") services"
done
