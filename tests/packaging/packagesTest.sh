#!/usr/bin/env bash
# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
#
# packagesTest.sh ROOT: how ./run and ./test get packages. A real apt-get with the test's folders, where nothing can be
# installed: the package lists are empty.
set -uo pipefail
. "$1/cmake/packages.sh"
sudo() { # the folders are the user's
    while [[ ${1:-} == -* ]]; do shift; done
    "$@"
}

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir -p "$folder"/lists/partial "$folder"/cache/archives/partial "$folder"/etc
: >"$folder/status"
cat >"$folder/apt.conf" <<EOF
Dir::State::lists "$folder/lists";
Dir::State::status "$folder/status";
Dir::State::extended_states "$folder/extended_states";
Dir::Cache "$folder/cache";
Dir::Etc::sourcelist "$folder/etc/sources.list";
Dir::Etc::sourceparts "$folder/etc";
EOF
export APT_CONFIG=$folder/apt.conf

missing="Missing packages: no-such-package. Get them with: sudo apt-get install"

# expect NAME OUTPUT TEXT...: the output has each text, in this order.
expect() {
    local name=$1 output=$2 text
    local rest=$output
    shift 2
    for text in "$@"; do
        [[ $rest == *"$text"* ]] || { printf '%s: no "%s" in\n%s\n' "$name" "$text" "$output"; exit 1; }
        rest=${rest#*"$text"}
    done
}

output=$(corvel_install no-such-package 2>&1) && { echo "a missing package is not a failure"; exit 1; }
expect "the reason" "$output" "Installing: no-such-package" "Unable to locate package no-such-package" "$missing"

mkfifo "$folder/end"
for lock in lists/lock lock-frontend; do
    # Locked as a package manager does, until the other end of the pipe is closed.
    python3 -c 'import fcntl, sys
file = open(sys.argv[1], "w")
fcntl.lockf(file, fcntl.LOCK_EX)
open(sys.argv[2]).read()' "$folder/$lock" "$folder/end" &
    exec {end}>"$folder/end" # opens when the lock is held

    output=$(CORVEL_APT_PATIENCE=1 corvel_install no-such-package 2>&1) && exit 1
    expect "$lock stays held" "$output" "Another package manager is at work" "lock" "$missing"

    : >"$folder/output" # of the lock before
    corvel_install no-such-package >"$folder/output" 2>&1 {end}>&- &
    installing=$!
    until grep -q "Another package manager" "$folder/output"; do sleep 0.1; done
    exec {end}>&-
    wait "$installing"
    expect "$lock is freed" "$(cat "$folder/output")" "at work" "Unable to locate package no-such-package" "$missing"
done

# A lock that cannot be opened, as in another user's folder, is not waited for.
rm -f "$folder/lists/lock"
mkdir "$folder/lists/lock"
output=$(CORVEL_APT_PATIENCE=1 corvel_install no-such-package 2>&1) && exit 1
expect "a lock that cannot be opened" "$output" "Could not open lock file" "$missing"
[[ $output != *"Another package manager"* ]] || { printf 'waits for nobody:\n%s\n' "$output"; exit 1; }
