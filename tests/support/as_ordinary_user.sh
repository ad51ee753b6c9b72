#!/bin/sh
# as_ordinary_user.sh PROGRAM FILTER: runs these tests of a program as a user without privileges and
# without processes of its own. Skipped by an ordinary user, who has run them all the same.
[ "$(id -u)" = 0 ] || exit 77
# Some builds have a part of the programs only.
[ -x "$1" ] || exit 77
folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT
# What the program lies in may be for its owner only.
chmod 755 "$folder" && cp "$1" "$folder/tests" && cd "$folder" || exit 1
setpriv --reuid=65534 --regid=65534 --clear-groups --no-new-privs ./tests --gtest_filter="$2"
