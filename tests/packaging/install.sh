#!/usr/bin/env bash
# install.sh CMAKE BUILD_FOLDER: installs what is built there under a folder of its own, as a packager and as a
# user with a prefix of their own do, looks at what is there, and has it removed again.
set -u
cmake=$1 build=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
complain() {
    echo "$*"
    failures=$((failures + 1))
}
id=com.kestrone.Vantor
expected=$(sort <<END
bin/vantor
share/applications/$id.desktop
share/dbus-1/services/$id.service
share/doc/vantor/LICENSE
$(printf "share/icons/hicolor/%s/apps/$id.png\n" {16x16,22x22,24x24,32x32,48x48,64x64,128x128,256x256,512x512})
share/icons/hicolor/scalable/apps/$id.svg
share/icons/hicolor/symbolic/apps/$id-symbolic.svg
share/man/man1/vantor.1
$(sed -n 's|^[^#].*|share/man/&/man1/vantor.1|p' "$(dirname "$0")/../../translations/complete")
share/metainfo/$id.metainfo.xml
share/vantor/snapshot.schema.json
END
)

# expect_installed FOLDER PREFIX: all of it is in the folder, and the bus is told the program's place by its prefix.
expect_installed() {
    local found service=()
    found=$(cd "$1" && find . -type f | sed 's/^\.\///' | sort)
    [ "$found" = "$expected" ] || complain "These are not what belongs there:" "$(diff <(echo "$expected") <(echo "$found"))"
    # Read as the bus reads it: like a command of the shell.
    eval "service=($(sed -n 's/^Exec=//p' "$1/share/dbus-1/services/$id.service"))"
    [[ ${service[0]} = "$2/bin/vantor" && ${service[*]:1} = --background ]] || complain "The bus would start ${service[*]}"
    [ -x "$1/bin/vantor" ] || complain "The program cannot be executed"
}
# expect_removed FOLDER
expect_removed() {
    local left
    left=$(find "$1" -type f -o -type l -o -name vantor)
    [ -z "$left" ] || complain "These are left:" "$left"
}
uninstall() { "$cmake" -D "MANIFEST=$build/install_manifest.txt" -P "$(dirname "$0")/../../cmake/Uninstall.cmake" >/dev/null || complain "It could not be removed"; }

DESTDIR=$work/staged "$cmake" --install "$build" --prefix /usr >/dev/null || complain "It could not be installed below a folder"
expect_installed "$work/staged/usr" /usr
DESTDIR=$work/staged uninstall
expect_removed "$work/staged"

prefix="$work/it's a prefix"
"$cmake" --install "$build" --prefix "$prefix" >/dev/null || complain "It could not be installed to a prefix"
expect_installed "$prefix" "$prefix"
touch "$prefix/share/vantor/another"
uninstall
[ -e "$prefix/share/vantor/another" ] || complain "Another's file was removed, too"
rm "$prefix/share/vantor/another" && rmdir "$prefix/share/vantor"
expect_removed "$prefix"

[ $failures = 0 ]
