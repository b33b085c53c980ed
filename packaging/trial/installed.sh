# SPDX-License-Identifier: GPL-3.0-or-later
# What try-packages demands of packages that are installed in $root.

# says TEXT STATUS COMMAND...: the status tells a program from one that a library is missing for.
says() {
    text=$1 wanted=$2
    shift 2
    status=0
    said=$(inside "$@" 2>&1) || status=$?
    [ "$status" -eq "$wanted" ] || fail "$* ended with $status: $said"
    case $said in
    *"$text"*) ;;
    *) fail "$* says: $said" ;;
    esac
}

check_wanted_files() {
    inside dpkg-query --listfiles "$1" >"$work/files-of-package"
    while read -r owner mode pattern; do
        [ "$owner" = "$1" ] || continue
        # Its directory may have the name of the architecture in it.
        for file in "$root"$pattern; do
            [ "$(stat -c '%U:%G %a' "$file")" = "root:root $mode" ] || fail "wanted of $owner: $mode $pattern"
            grep -qxF "${file#"$root"}" "$work/files-of-package" || fail "${file#"$root"} is not of $owner"
        done
    done <"$here/trial/wanted-files"
}

# check_unaltered [FILE]: but for FILE all is as it was packed.
check_unaltered() {
    altered=$(inside dpkg --verify $packages | sed 's/.* //')
    [ "$altered" = "${1-}" ] || fail "not as they were packed: $altered"
}

is_elf() { [ ! -L "$1" ] && [ -f "$1" ] && [ "$(head -c 4 "$1" | tr -d '\0')" = "$(printf '\177ELF')" ]; }

# Plug-ins find in the program that loads them what it exports.
list_launcher_symbols() { nm -D --defined-only "$root/usr/bin/zr-launcher" | awk '{ print $NF }' >"$work/launcher-symbols"; }

# check_libraries FILE [SYMBOLS]: the libraries of an installed file are found and have all it needs, but what is listed
# in the file SYMBOLS.
check_libraries() {
    linked=$(inside ldd -r "$1" 2>&1) || fail "$1: $linked"
    missing=$(echo "$linked" | sed -n 's/^undefined symbol: \([^,[:space:]]*\).*/\1/p; /not found/p; /not defined/p' |
        grep -vxFf "${2-/dev/null}") || return 0
    fail "$1 lacks: $missing"
}

check_all_libraries() {
    [ "$1" != zr-launcher-plugins ] || list_launcher_symbols
    for file in $(inside dpkg-query --listfiles "$1"); do
        [ -e "$root$file" ] || fail "$file leads nowhere"
        is_elf "$root$file" || continue
        case $file in
        */zr-launcher/plugins/*) check_libraries "$file" "$work/launcher-symbols" ;;
        *) check_libraries "$file" ;;
        esac
    done
}

# A first start, with the platform that needs no screen, and an orderly end. What it says goes to $root/said.
start_launcher() {
    # shellcheck disable=SC2016
    quietly inside timeout 60 dbus-run-session -- sh -euc '
        QT_QPA_PLATFORM=offscreen zr-launcher >/said 2>&1 &
        until grep -q "all plugins loaded" /said; do
            kill -0 $!
            sleep 0.1
        done
        kill $!
        wait $!'
}

check_launcher() {
    says "launcher $version" 1 zr-launcher --version
    says "usage: zr-start" 2 zr-start
    says "zr-flash-service [--mount-limit MS]" 2 zr-flash-service --help
    says "usage: zr-mount-flash" 1 /usr/libexec/zr-launcher/zr-mount-flash
    start_launcher
}

check_launcher_surroundings() {
    quietly inside id zr
    quietly inside visudo -cq
    for unit in launcher flash-service session-bus; do
        quietly inside systemd-analyze verify --man=no --recursive-errors=no "zr-$unit.service"
    done
    # What units, rules and programs run by name.
    for command in amixer dbus-daemon fc-cache rsync sudo udevadm udisksctl \
        $(sed -n 's/.*NOPASSWD: \([^ ]*\).*/\1/p' "$root"/etc/sudoers.d/zr-*); do
        quietly inside sh -c "command -v $command"
    done
    inside fc-cache -s -v | grep -q 'truetype/liberation: skipping, existing cache is valid' ||
        fail "the cache of fonts is cold"
}

check_plugins() {
    start_launcher
    for name in $(sed -n 's/^name=//p' "$root/etc/xdg/talvenor/zr-launcher.conf"); do
        grep -q "loading plugin shipped:/$name" "$root/said" || fail "$name is not asked for"
    done
    ! grep -E 'not found|failed|undefined' "$root/said" || fail "the launcher does not take its plug-ins"
}

check_simulator() {
    says "card" 2 zr-simulator
    says "e1-1001" 0 env ZR_SYSROOT=/instrument dbus-run-session -- \
        sh -ec 'zr-simulator card insert e1 1001 && zr-simulator card list'
    says "59" 0 /usr/libexec/zr-simulator/free-port
}

check_programs() {
    case $1 in
    zr-launcher)
        check_launcher
        check_launcher_surroundings
        ;;
    zr-launcher-plugins) check_plugins ;;
    zr-launcher-simulator) check_simulator ;;
    esac
}

check_installed() {
    for package; do
        check_wanted_files "$package"
        check_all_libraries "$package"
        check_programs "$package"
    done
}

check_version() {
    for package in $packages; do
        [ "$(inside dpkg-query -W -f '${Version}' "$package")" = "$1" ] || fail "$package is not of version $1"
    done
}

is_enabled() { inside systemctl --quiet is-enabled "$1"; }

check_units_are_enabled() {
    for unit in $(grep -ls '^\[Install\]' "$root"/usr/lib/systemd/system/zr-*.service); do
        is_enabled "${unit##*/}" || fail "${unit##*/} is not enabled"
    done
}

build_plugin() {
    cp -R "$source/tests/e2e/outside" "$root/outside"
    install_packages g++ cmake ninja-build
    quietly inside cmake -S /outside -B /outside/build -G Ninja
    quietly inside cmake --build /outside/build
    list_launcher_symbols
    check_libraries /outside/build/liboutside.so "$work/launcher-symbols"
}
