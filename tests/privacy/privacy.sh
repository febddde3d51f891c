#!/usr/bin/env bash
# privacy.sh kovamo app_test: runs the app under strace, as its user starts it, as it draws its
# pictures and as its tests walk through the screens. No socket but a local one may be opened, and
# nothing written but below the folders that are the app's own.
set -euo pipefail
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
mkdir home data config cache tmp pictures
mkdir -m 700 runtime

# Leaks cannot be looked for in a process that is traced already.
traced() {
    env -i PATH="$PATH" LANG=C.UTF-8 QT_QPA_PLATFORM=offscreen HOME="$PWD/home" \
        XDG_DATA_HOME="$PWD/data" XDG_CONFIG_HOME="$PWD/config" XDG_CACHE_HOME="$PWD/cache" \
        XDG_RUNTIME_DIR="$PWD/runtime" TMPDIR="$PWD/tmp" ASAN_OPTIONS=detect_leaks=0 \
        strace -f -qq -s 4096 -o "$1.trace" -e trace=%network,%file "${@:2}" >"$1.output" 2>&1
}

# check trace pattern …: fails with the calls of a trace that are none of the app's business; its
# folders are given besides. The system's cache of fonts is the font library's, which brings it up to
# date where it runs as root.
check() {
    local fonts=/var/cache/fontconfig/
    local allowed="^[0-9]+ +[a-z0-9_]+\((AT_FDCWD, )?\"($scratch/(data|config|cache|runtime)/|$2|$fonts|/dev/null\")"
    grep -q 'O_RDWR.*O_CREAT' "$1.trace" # it is a trace of something
    if grep -E '(socket|socketpair)\(' "$1.trace" | grep -vE '\(AF_UNIX,'; then
        echo "$1: a socket that leads out" && exit 1
    fi
    if grep -E 'O_(WRONLY|RDWR|CREAT|TRUNC)|(creat|rename|renameat2?|unlink|unlinkat|mkdir|mkdirat|rmdir|linkat?|symlink|symlinkat|truncate|f?chmod[a-z0-9]*|f?chown[a-z0-9]*|mknod[a-z]*|utime[a-z0-9]*|[a-z]*setxattr)\(' "$1.trace" |
        grep -vE ' = -1 (ENOENT|EEXIST)|(readlink[a-z]*|access)\(|linkat\(AT_FDCWD, "/proc/self/fd/' |
        grep -vE "$allowed"; then
        echo "$1: a write to what is not the app's" && exit 1
    fi
}

mkdir config/Kovamo
echo onboardingFinished=true >config/Kovamo/Kovamo.conf
traced start "$1" &
for ((tries = 0; tries < 300; ++tries)); do
    sleep 0.1
    grep -q appStartUpsCountKey config/Kovamo/Kovamo.conf && break
done
kill "$(awk 'NR == 1 { print $1 }' start.trace)"
wait
grep -q appStartUpsCountKey config/Kovamo/Kovamo.conf
[[ -e data/Kovamo/Kovamo.sqlite ]]
check start "$scratch/none"

traced pictures "$1" --pictures "$PWD/pictures"
check pictures "$scratch/(pictures(/|\")|tmp/qt_temp-[^/]*(\"|/(data|config)(/|\")))"

# The tests also write the files that they open.
traced screens "$2" '--gtest_filter=App.*'
check screens "$scratch/tmp/test-[^/]*(/app_test-[^/]*)?(\"|/(home|xdg_[a-z]*_home)\"|/xdg_(data|config|cache)_home/|/[0-9]+\.csv\")"
