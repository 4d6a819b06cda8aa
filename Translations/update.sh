#!/usr/bin/env bash
# Brings the translations up to date with the texts in the sources: new texts come in empty, texts that have gone are
# dropped. Then fill in what is empty; the test "Translations" says what is missing. Entries stay marked as unfinished
# until a native speaker has reviewed them in Qt Linguist; the program uses them all the same.
#   Translations/update.sh [FOLDER]    FOLDER: where the .ts files are, else this folder
# LUPDATE names the tool, else the one of the path is taken.
set -eu

translations=$(dirname "$(readlink -f "$0")")
folder=$(readlink -f "${1:-$translations}")
cd "$translations/.."

# A changed text is another text: what only looks alike is not taken over.
options=(-silent -no-obsolete -locations none -source-language en -disable-heuristic similartext -disable-heuristic number)
# Folders with texts. The tool does not know digit separators (1'000) and loses texts behind them, so a complaint is an error.
sources=(-extensions cpp,h -I Platform -I Modules -I Hosts Modules Platform/App Platform/Gui Platform/Transcoder Hosts)

Update() {
    if ! complaints=$("${LUPDATE:-lupdate}" "${options[@]}" "${sources[@]}" "$@" 2>&1) || [ -n "$complaints" ]; then
        printf '%s\n' "$complaints" >&2
        exit 1
    fi
}

for language in de es fr ja pl ru uk zh_CN; do
    Update -target-language "$language" -ts "$folder/korvex_$language.ts"
done
# English needs its plurals alone.
Update -pluralonly -target-language en -ts "$folder/korvex_en.ts"
