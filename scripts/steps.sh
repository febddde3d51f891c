# The steps that ./run, ./test, .ci/run and the scripts here share; sourced by them with bash. What
# they say goes to standard error: standard output is the app's.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Where ccache is installed, it keeps the compiler's work.
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi

# A package that releases of Debian call by different names stands with all of them, newest first.

# What the app cannot do without, and its package depends on: the QML modules that its screens
# import, the plugins that open a window on Wayland and read SVG pictures, an emoji font, and the rules
# of the time zones.
app_packages=(
    fonts-noto-color-emoji
    qml6-module-qt-labs-folderlistmodel
    qml6-module-qtqml
    qml6-module-qtqml-models
    qml6-module-qtqml-workerscript
    qml6-module-qtquick
    qml6-module-qtquick-controls
    qml6-module-qtquick-dialogs
    qml6-module-qtquick-layouts
    qml6-module-qtquick-templates
    qml6-module-qtquick-window
    'qt6-svg-plugins|libqt6svg6'
    qt6-wayland
    tzdata
)

# With fonts for every script.
run_packages=("${app_packages[@]}" fonts-noto-cjk fonts-noto-core)

library_packages=(
    libcsv-dev
    libfontconfig-dev
    libicu-dev
    libsqlite3-dev
    libsqlitecpp-dev
    libxxhash-dev
    qt6-base-dev
    qt6-declarative-dev
    qt6-wayland-dev
)

build_packages=("${library_packages[@]}" cmake g++ ninja-build unicode-data wayland-protocols)

# The accessibility test starts a display and buses of its own, the phone's test a compositor and an
# on-screen keyboard; the privacy test traces the app; what reads a journal reads the app's.
test_packages=(
    at-spi2-core
    dbus-daemon
    grim
    hledger
    ledger
    libgtest-dev
    libwayland-dev
    phoc
    pkgconf
    squeekboard
    strace
    wlr-randr
    xvfb
)

lint_packages=(clang-format)

# Without dpkg-dev and file, a package would not know what it depends on.
package_packages=(appstream desktop-file-utils dpkg-dev file lintian)

bench_packages=(dbus-daemon gnuplot-nox ledger libbenchmark-dev sqlite3 time valgrind xvfb)

fuzz_packages=(clang libclang-rt-dev llvm)

say() {
    printf '%s\n' "$*" >&2
}

as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

apt_install() {
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install --yes --quiet --no-install-recommends "$@" >&2
}

# names_here package …: prints the names; of "new|old", the first one that apt knows.
names_here() {
    local known package name
    known=$(apt-cache show --no-all-versions $(printf '%s\n' "$@" | grep -F '|' | tr '|' ' ') \
        2>/dev/null | sed -n 's/^Package: //p') || true
    for package; do
        for name in ${package//|/ }; do
            [[ $package != *'|'* || $'\n'$known$'\n' == *$'\n'$name$'\n'* ]] && break
        done
        printf '%s\n' "$name"
    done
}

# install_missing package …: installs those that are not there. The package index is fetched
# anew only where there is none, or it does not know a package, or knows it by a file that is gone.
install_missing() {
    if ! command -v dpkg-query >/dev/null; then
        say "This is not a Debian system; these packages must be there by other names: $*"
        return
    fi
    if ((EUID == 0)) && ! compgen -G '/var/lib/apt/lists/*_Packages*' >/dev/null; then
        apt-get update --quiet >&2 || true
    fi
    local installed package packages missing=()
    mapfile -t packages < <(names_here "$@")
    installed=$(dpkg-query --show --showformat='|${Package} ${db:Status-Status}|' \
        "${packages[@]}" 2>/dev/null) || true
    for package in "${packages[@]}"; do
        [[ $installed == *"|$package installed|"* ]] || missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    if ((EUID != 0)) && ! command -v sudo >/dev/null; then
        say "There is no sudo here. Install as root, then try again: ${missing[*]}"
        return 1
    fi
    say "Installing ${missing[*]}"
    if apt-get install --simulate "${missing[@]}" &>/dev/null && apt_install "${missing[@]}"; then
        return
    fi
    as_root apt-get update --quiet >&2 && apt_install "${missing[@]}"
}

# build preset target [option …]: configures, with the options, where that has not been done with
# the presets as they are, then builds what is out of date.
build() {
    local preset=$1 target=$2
    shift 2
    local recipe=$root/build/$preset/build.ninja
    (
        cd "$root"
        if [[ ! $recipe -nt CMakePresets.json ]]; then
            cmake --preset "$preset" "$@"
        fi
        cmake --build --preset "$preset" --target "$target"
    ) >&2
}

# pack preset: makes the Debian package of what has been built, and checks it.
pack() {
    local depends id=org.kovamo.Kovamo
    depends=$(names_here "${app_packages[@]}" | paste --serial --delimiters=,)
    (
        cd "$root/build/$1"
        rm -f kovamo_*.deb
        cpack -D CPACK_DEBIAN_PACKAGE_DEPENDS="${depends//,/, }"
        # Debian 12's validator does not know SingleMainWindow.
        sed '/^SingleMainWindow=/d' "$root/packaging/$id.desktop" >"$id.desktop"
        desktop-file-validate "$id.desktop"
        # With pictures, too, which are listed for an address only.
        cmake -D KOVAMO_SCREENSHOTS=https://example.org/kovamo -D METAINFO="$PWD/$id.metainfo.xml" \
            -P "$root/packaging/metainfo.cmake"
        # There is no home page, which Debian 13's validator warns of.
        if appstreamcli validate --no-net "packaging/$id.metainfo.xml" "$id.metainfo.xml" |
            grep '^[EW]:' | grep -v url-homepage-missing; then
            exit 1
        fi
        # Debian 12's lintian does not know the tag that is overridden for Debian 13's.
        lintian --display-info --suppress-tags alien-tag --fail-on error,warning kovamo_*.deb
    ) >&2
}
