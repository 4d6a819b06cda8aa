#!/usr/bin/env bash
# The main job on the sample clip: `demo.sh <folder of the programs>`. Started by ./run without arguments.
set -eu

bin=$1
cd "$(dirname "$(readlink -f "$0")")"

if [ ! -f clip.mkv ]; then
    "$bin/korvex-make-sample" clip.part.mkv
    mv clip.part.mkv clip.mkv
fi
mkdir -p output
"$bin/korvex" convert clip.mkv -o output/clip-soft.mkv --overwrite --no-lookup --tracks none \
    --add clip.ru.srt --language ru --title "Русский" \
    --add clip.en.ass --language en --title "English" --default
"$bin/korvex" convert clip.mkv -o output/clip-burned.mp4 --overwrite --no-lookup --add clip.en.ass --burn
"$bin/korvex" preview clip.mkv --at 1.5 -o output/clip-preview.png --overwrite --no-lookup --add clip.ru.srt --burn

cat <<TEXT

Written in $PWD/output:
    clip-soft.mkv      two switchable subtitle tracks, Russian (SubRip, was CP1251) and English (ASS)
    clip-burned.mp4    the English track drawn into the picture
    clip-preview.png   a picture of the clip with the Russian track drawn in

Play them with any player, for example
    mpv "$PWD/output/clip-soft.mkv"
and choose the subtitle track in its menu.
TEXT
