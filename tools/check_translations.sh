#!/usr/bin/env bash
# Fails when translations/orvane.ts lacks a text of src or keeps one src no longer has: it
# runs lupdate over a copy and compares. Usage: check_translations.sh LUPDATE SOURCE_DIR
set -euo pipefail
lupdate=$1
root=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$root/translations/orvane.ts" "$work/orvane.ts"
"$lupdate" -silent -recursive -extensions cpp,h -locations none -no-obsolete "$root/src" \
    -ts "$work/orvane.ts" >/dev/null
if ! diff -u "$root/translations/orvane.ts" "$work/orvane.ts"; then
    echo "translations/orvane.ts is out of date: build the target orvane_lupdate and commit it" >&2
    exit 1
fi
