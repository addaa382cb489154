#!/usr/bin/env bash
# Fails when a source folder includes a header from a folder on its own level or above, so
# every include points down: app -> axistest -> setup, motion, monitor, scope -> core,
# controls, sim -> board.
# Includes name bare files, so each is resolved to the folder under src that holds it.
set -euo pipefail
src="${1:-$(dirname "$0")/../src}"
declare -A rank=([board]=0 [core]=1 [controls]=1 [sim]=1
                 [setup]=2 [motion]=2 [monitor]=2 [scope]=2 [axistest]=3 [app]=4)
declare -A home
while IFS= read -r path; do
  rel="${path#"$src"/}"
  home["${rel##*/}"]="${rel%%/*}"
done < <(find "$src" -type f \( -name '*.h' -o -name '*.cpp' \))

status=0
for dir in "$src"/*/; do
  folder="$(basename "$dir")"
  if [ -z "${rank[$folder]+set}" ]; then
    echo "check_layers: folder src/$folder has no layer; add it to tools/check_layers.sh"
    status=1
    continue
  fi
  while IFS=: read -r file line header; do
    target="${home[${header##*/}]:-}"
    [ -z "$target" ] || [ "$target" = "$folder" ] && continue
    if [ "${rank[$target]}" -ge "${rank[$folder]}" ]; then
      echo "${file#"$src"/}:$line: src/$folder includes $header from src/$target, which is not below it"
      status=1
    fi
  done < <(grep -rnoE '^\s*#\s*include\s+"[^"]+"' "$dir" | sed -E 's/^([^:]+):([0-9]+):.*"([^"]+)"$/\1:\2:\3/')
done
[ $status -eq 0 ] && echo "check_layers: every include points down"
exit $status
