#!/usr/bin/env bash
# Checks the direction of the includes: a folder of src/ includes itself and what lies below it, and only qt/ folders
# include Qt. Prints each line that doesn't hold, and fails if there is one.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../src"

# The levels of the house from the bottom up; folders of one level don't include each other.
levels=(
  "text"
  "settings language linking"
  "model"
  "editor"
  "document"
  "properties selectors preview support validation wizards"
  "shell"
  "cli"
)

level_of() {
  local index
  for index in "${!levels[@]}"; do
    [[ " ${levels[$index]} " == *" $1 "* ]] && { echo "$index"; return; }
  done
  echo "check-includes: src/$1 has no level in the house" >&2
  exit 1
}

faults=0
fault() { echo "src/$1: $2" >&2; faults=$((faults + 1)); }

while IFS= read -r file; do
  folder=${file%%/*}
  in_qt=no; [[ "/$file" == */qt/* ]] && in_qt=yes
  own=$(level_of "$folder")
  while IFS= read -r included; do
    case $included in
      \"*/*\") # One of ours.
        included=${included//\"/}
        other=${included%%/*}
        [[ $in_qt == no && "/$included" == */qt/* ]] && fault "$file" "the core includes \"$included\""
        [[ $other == "$folder" ]] && continue
        level=$(level_of "$other")
        # A window may use any core; among themselves windows keep the direction too.
        if [[ $in_qt == yes && "/$included" != */qt/* ]]; then continue; fi
        [[ $level -lt $own ]] || fault "$file" "includes \"$included\", which isn't below it"
        ;;
      \"*\") fault "$file" "includes $included without its folder" ;;
      \<Q*\>) [[ $in_qt == yes ]] || fault "$file" "includes $included, which is Qt's" ;;
    esac
  done < <(sed -n 's/^ *# *include *\(["<][^">]*[">]\).*/\1/p' "$file")
done < <(find . -name '*.h' -o -name '*.cpp' | sed 's|^\./||' | sort)

[ "$faults" -eq 0 ] || { echo "check-includes: $faults includes lead the wrong way" >&2; exit 1; }
echo "check-includes: the includes keep their direction"
