#!/usr/bin/env bash
# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
#
# Builds the Debian packages from the release preset, lets lintian look at them, and tries them on a fresh Debian: they
# are installed, print the sample photo, and are removed again. Needs root, debootstrap, lintian, and the mirror.
#
#     packaging/checkPackages.sh [--mirror URL] [--suite NAME] [--root FOLDER]
#
# --root keeps the fresh system in FOLDER and uses it again the next time.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
top=$(dirname "$here")
mirror=http://deb.debian.org/debian
suite=bookworm
root=
while [ $# -gt 0 ]; do
    case $1 in
        --mirror) mirror=$2 ;;
        --suite) suite=$2 ;;
        --root) root=$2 ;;
        *)
            echo "checkPackages.sh: \"$1\" is unknown. See the beginning of the script." >&2
            exit 2
            ;;
    esac
    shift 2
done

fail() {
    echo "checkPackages.sh: $*" >&2
    exit 1
}
[ "$(id -u)" -eq 0 ] || fail "a fresh system is made as root. Run it with sudo."
for tool in debootstrap lintian cpack; do
    command -v "$tool" >/dev/null || fail "$tool is missing. Get it with: apt-get install $tool"
done

step() {
    printf '%4d s  %s\n' "$SECONDS" "$*"
}

# The packages.
build=$top/build/package
rm -rf "$build/packages"
cmake --preset release -S "$top" -B "$build" -DBUILD_TESTING=OFF -DCORVEL_BENCHMARKS=OFF >/dev/null
cmake --build "$build"
(cd "$build" && cpack -G DEB)
step "packages built"
lintian --fail-on error --suppress-tags initial-upload-closes-no-bugs --allow-root --info "$build"/packages/*.deb
step "lintian has no errors"

# The fresh system.
keep=$root
[ -n "$root" ] || root=$(mktemp -d)
mkdir -p "$root"
chmod 755 "$root" # an ordinary user prints in it
clean_up() {
    mountpoint -q "$root/proc" && umount "$root/proc"
    [ -n "$keep" ] || rm -rf --one-file-system "$root"
}
trap clean_up EXIT
if [ ! -x "$root/usr/bin/apt-get" ]; then
    debootstrap --variant=minbase "$suite" "$root" "$mirror" >/dev/null
    step "fresh $suite"
fi
mount -t proc proc "$root/proc"
inside() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/tmp LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}
names() {
    inside find / -xdev \( -ipath '*corvel*' -o -ipath '*pdekit*' \) -not -path '/tmp/*' -not -path '/var/log/*' \
        -not -path '/var/cache/*'
}
[ -z "$(names)" ] || fail "the system in $root is not fresh. Remove it, or choose another --root."
rm -rf "$root/tmp/check" && mkdir -p "$root/tmp/check"
chmod 777 "$root/tmp/check"
cp "$build"/packages/*.deb "$top/resources/photos/sample.jpg" "$root/tmp/check"

inside apt-get update -qq
inside sh -c 'apt-get install -y -qq --no-install-recommends -o Dpkg::Use-Pty=0 /tmp/check/*.deb' >/dev/null
step "installed, with $(inside dpkg-query -f '.\n' -W | wc -l) packages in all"
# Not grep -q, which ends at the first line that fits: the program before it then dies of its pipe.
inside ldconfig -p | grep libpdekit >/dev/null || fail "the dynamic linker does not know libpdekit."
inside setpriv --reuid=nobody --clear-groups \
    corvel-print --batch --ppd /usr/share/ppd/corvel-print/Corvel9031.ppd -o Red=7 --output /tmp/check /tmp/check/sample.jpg
grep -q '"Red": "7"' "$root/tmp/check/sample.ticket.json" || fail "the option did not reach the ticket."
[ "$(head -c 5 "$root/tmp/check/sample.pdf")" = %PDF- ] || fail "sample.pdf is not a PDF file."
inside corvel-print --printer built-in --list-options | grep 'Color Adjustments' >/dev/null || fail "the plug-in was not found."
step "prints"
service=/usr/share/dbus-1/services/org.freedesktop.impl.portal.desktop.corvel.service
program=$(inside sed -n 's/^Exec="\(.*\)"$/\1/p' "$service")
inside test -x "$program" || fail "the session bus cannot start \"$program\"."
inside test -e /usr/share/xdg-desktop-portal/portals/corvel.portal || fail "the portal does not know the dialog."
inside apt-get purge -y -qq -o Dpkg::Use-Pty=0 corvel-print 'libpdekit*' >/dev/null
left=$(names)
[ -z "$left" ] || fail "left behind after removal: $left"
inside apt-get autoremove --purge -y -qq -o Dpkg::Use-Pty=0 >/dev/null
step "removed without a trace"
