# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
#
# What ./run, ./test, ./bench and ./fuzz share: the Debian packages, and functions that install what is missing and
# build. Sourced, not run.

corvel_build_packages=(
    cmake ninja-build g++ pkg-config python3
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n
    qt6-base-private-dev libqt6opengl6-dev libgl-dev libopengl-dev libvulkan-dev
    libcups2-dev libseccomp-dev liblcms2-dev libheif-dev zlib1g-dev libjpeg-dev libpng-dev libglib2.0-dev
    libxcb1-dev libxcb-randr0-dev libwayland-dev wayland-protocols qt6-pdf-dev libqpdf-dev fonts-dejavu-core gzip
)
corvel_test_packages=(
    cups cups-client cups-filters poppler-utils appstream desktop-file-utils bash-completion groff-base
    at-spi2-core dbus xvfb avahi-daemon cups-ipp-utils iproute2 qpdf
    xdg-desktop-portal gir1.2-gtk-3.0 python3-gi python3-gi-cairo ghostscript xdotool openbox
)

corvel_bench_packages=(img2pdf imagemagick libgtk-3-dev libvips-dev xvfb xdg-desktop-portal-gtk)
corvel_fuzz_packages=(clang libclang-rt-dev llvm qt6-image-formats-plugins)

# corvel_install PACKAGE...: installs those that are missing; takes a few milliseconds when none is.
corvel_install() {
    local missing=() package
    local -A installed=()
    if command -v dpkg-query >/dev/null; then
        while read -r package; do installed[$package]=1; done < <(
            dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' "$@" 2>/dev/null | sed -n 's/^ii *//p')
    fi
    for package in "$@"; do
        [ -n "${installed[$package]:-}" ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    local sudo=()
    if [ "$(id -u)" -ne 0 ]; then
        sudo=(sudo)
        [ -t 0 ] || sudo+=(-n) # nobody is there to type a password
    fi
    local command="apt-get install -y --no-install-recommends ${missing[*]}"
    echo "Installing: ${missing[*]}" >&2
    if ! { corvel_apt "${sudo[@]}" env LC_ALL=C apt-get update -qq &&
            corvel_apt "${sudo[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive $command; }; then
        echo "Missing packages: ${missing[*]}. Get them with: sudo $command" >&2
        return 1
    fi
}

# corvel_apt COMMAND...: runs it in English and silently. Waits while another package manager holds one of apt's locks,
# for CORVEL_APT_PATIENCE seconds at most (600 when it is not set). Shows the last lines of a failure.
corvel_apt() {
    local output waited=0
    until output=$("$@" 2>&1 </dev/null); do
        if ! grep -qE 'Could not get lock|is another process using it' <<<"$output" ||
                [ "$waited" -ge "${CORVEL_APT_PATIENCE:-600}" ]; then
            tail -n 5 <<<"$output" >&2
            return 1
        fi
        [ "$waited" -gt 0 ] || echo "Another package manager is at work; waiting for it to finish." >&2
        sleep 1
        waited=$((waited + 1))
    done
}

# corvel_build ROOT PRESET TARGET...: configures the build folder when it is new, and builds the targets.
corvel_build() {
    local root=$1 preset=$2
    shift 2
    local folder=$root/build/$preset
    [ -f "$folder/build.ninja" ] || (cd "$root" && cmake --preset "$preset")
    cmake --build "$folder" --target "$@"
}
