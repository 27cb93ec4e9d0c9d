#!/usr/bin/env bash
# Prints the path of axe.min.js, the script of axe-core that searches web pages for barriers: for check_pages.py in tests/export.
# The package comes once by npm, in this version and no other, and stays in the user's cache (ZG_AXE_CACHE names another directory);
# the tree is not written to. Ends with 77 where the package cannot be fetched. No code of the package runs here.
set -euo pipefail

version=4.14.1
# npm's "integrity" of this version, in hexadecimal
sum=1477dafa598d8d065f273d6af302aa203c02e83131707b7fa648cd41bd3d6b734f8c22a0dab86ee6a6f64b8afbe804b214d36db85a2826965edfb3a0b9d546b5
cache=${ZG_AXE_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/zephyrgraph-axe}/$version
archive=$cache/axe-core-$version.tgz

is_whole() { echo "$sum  $1" | sha512sum --check --status 2>/dev/null; }
status=1
fail() { printf 'tools/axe.sh: %s\n' "$*" >&2; exit $status; }

if ! is_whole "$archive"; then
    command -v npm >/dev/null 2>&1 || fail "npm is missing, which fetches axe-core (tools/setup.sh --checks installs it)"
    mkdir -p "$cache"
    scratch=$(mktemp -d "$cache/fetched.XXXXXX")
    trap 'rm -rf "$scratch"' EXIT
    (cd "$scratch" && npm_config_cache=$scratch/npm npm pack --silent --fetch-retries=1 "axe-core@$version" >/dev/null 2>&1) ||
        { status=77; fail "npm could not fetch axe-core $version; is there a network? A copy of the package may be put at $archive"; }
    is_whole "$scratch/axe-core-$version.tgz" || fail "what npm fetched is not axe-core $version as published: its sum differs"
    mv "$scratch/axe-core-$version.tgz" "$archive"
fi
# In one step: another check may be reading it.
part=$(mktemp "$cache/axe.min.js.XXXXXX")
tar -xzOf "$archive" package/axe.min.js >"$part" && mv "$part" "$cache/axe.min.js" ||
    { rm -f "$part"; fail "$archive cannot be unpacked"; }
echo "$cache/axe.min.js"
