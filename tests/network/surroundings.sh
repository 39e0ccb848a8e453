#!/usr/bin/env bash
# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
#
# surroundings.sh COMMAND...: runs a command in a network of its own that has only the loopback interface, with a private
# system bus, Avahi and print server at their usual places, which the command finds without being told. It is given their
# process ids in BUS_PID, AVAHI_PID and CUPSD_PID, and a folder in SURROUNDINGS. Works for root and for an ordinary user.
# Exit status 77: not here, since the system refuses namespaces.
set -uo pipefail

if [ -z "${SURROUNDINGS_ENTERED:-}" ]; then
    as_user=()
    [ "$(id -u)" -eq 0 ] || as_user=(-U --map-current-user --keep-caps)
    if ! refusal=$(unshare "${as_user[@]}" -n -m sh -c 'ip link set lo up && mount -t tmpfs tmpfs /run' 2>&1); then
        echo "SKIP: no namespaces for a private network: $refusal"
        exit 77
    fi
    SURROUNDINGS_ENTERED=1 exec unshare "${as_user[@]}" -n -m "$0" "$@"
fi

PATH=$PATH:/usr/sbin:/sbin
for program in dbus-daemon avahi-daemon cupsd ippeveprinter; do
    command -v "$program" >/dev/null || { echo "$program is missing: ./test installs it"; exit 1; }
done
root=$(mktemp -d /tmp/surroundings-XXXXXX)
chmod 755 "$root"
pids=()
end() {
    for pid in "${pids[@]}"; do kill -CONT "$pid" && kill "$pid"; done 2>/dev/null
    wait
    rm -rf "$root"
}
trap end EXIT
# until_ok COMMAND...: waits until it succeeds, or fails after 10 s.
until_ok() {
    local deadline=$((SECONDS + 10))
    until "$@" >/dev/null 2>&1; do
        [ $SECONDS -lt $deadline ] || { echo "in vain: $*"; cat "$root"/*.log; exit 1; }
        sleep 0.02
    done
}

ip link set lo up
mount -t tmpfs tmpfs /run # the programs' own folders are compiled in
mkdir -p /run/avahi-daemon /run/cups
# Avahi insists on a user of this name, and gives it its files: the caller's ids.
for file in passwd group; do grep -v ^avahi: /etc/$file >"$root/$file"; done
echo "avahi:x:$(id -u):$(id -g)::/:/bin/false" >>"$root/passwd"
echo "avahi:x:$(id -g):" >>"$root/group"
for file in passwd group; do mount --bind "$root/$file" /etc/$file; done

cat >"$root/bus.conf" <<EOF
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
  "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:path=$root/bus</listen><auth>EXTERNAL</auth><policy context="default">
<allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy></busconfig>
EOF
dbus-daemon --config-file="$root/bus.conf" --nofork --nopidfile >"$root/bus.log" 2>&1 &
export BUS_PID=$!
pids=("$BUS_PID")
export DBUS_SYSTEM_BUS_ADDRESS=unix:path=$root/bus
until_ok test -S "$root/bus"

cat >"$root/avahi.conf" <<EOF
[server]
host-name=testhost
use-ipv6=no
allow-interfaces=lo
[wide-area]
enable-wide-area=no
[publish]
publish-hinfo=no
publish-workstation=no
EOF
avahi-daemon --no-drop-root --no-chroot --no-rlimits --no-proc-title -f "$root/avahi.conf" >"$root/avahi.log" 2>&1 &
export AVAHI_PID=$!
pids=("$AVAHI_PID" "${pids[@]}")

mkdir -p "$root"/{bin/backend,etc/ppd,etc/ssl,cache,state/certs,spool/tmp,log}
for folder in filter daemon notifier monitor driver cgi-bin backend/ipp backend/ipps; do
    ln -s "/usr/lib/cups/$folder" "$root/bin/$folder"
done
cat >"$root/cups-files.conf" <<EOF
ServerRoot $root/etc
ServerBin $root/bin
CacheDir $root/cache
StateDir $root/state
RequestRoot $root/spool
TempDir $root/spool/tmp
ServerKeychain $root/etc/ssl
ErrorLog $root/log/error_log
AccessLog $root/log/access_log
PageLog $root/log/page_log
DataDir /usr/share/cups
DocumentRoot /usr/share/cups/doc-root
CreateSelfSignedCerts no
SyncOnClose No
EOF
if [ "$(id -u)" -eq 0 ]; then
    chown -R lp "$root"/{cache,state,spool,log}
    printf 'User lp\nGroup lp\nSystemGroup root\n' >>"$root/cups-files.conf"
fi
cat >"$root/cupsd.conf" <<EOF
Listen /run/cups/cups.sock
Listen 127.0.0.1:631
Browsing No
WebInterface No
DefaultAuthType None
DefaultEncryption Never
ErrorPolicy abort-job
<Location />
Order allow,deny
Allow all
</Location>
<Policy default>
<Limit All>
Order deny,allow
Allow all
</Limit>
</Policy>
EOF
unset CUPS_SERVER
cupsd -f -c "$root/cupsd.conf" -s "$root/cups-files.conf" >"$root/cupsd.log" 2>&1 &
export CUPSD_PID=$!
pids=("$CUPSD_PID" "${pids[@]}")
until_ok grep -q 'startup complete' "$root/avahi.log"
until_ok sh -c 'lpstat -r | grep -q "is running"'

export SURROUNDINGS=$root
"$@"
