# SPDX-License-Identifier: GPL-3.0-or-later
# Clean Debian 12 root file systems in which apt finds our packages; below $work, for one run of try-packages.

# Nothing of ours is in it.
make_clean_root() {
    [ -f "$cache/minbase.tar" ] && return 0
    mkdir -p "$cache"
    mmdebstrap --quiet --format=tar --variant=minbase --components=main --aptopt='APT::Install-Recommends "false"' \
        bookworm "$cache/minbase.tar.part" "$mirror"
    mv "$cache/minbase.tar.part" "$cache/minbase.tar"
}

inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C DEBIAN_FRONTEND=noninteractive "$@"; }

# offer DIRECTORY NAME: apt takes the packages in DIRECTORY from now on.
offer() {
    mkdir "$root/$2"
    cp "$1"/*.deb "$root/$2"
    (cd "$root/$2" && dpkg-scanpackages --multiversion . >Packages 2>>"$log")
    echo "deb [trusted=yes] file:/$2 ./" >"$root/etc/apt/sources.list.d/$2.list"
    quietly inside apt-get update
}

# What every root of this run is a copy of.
make_base() {
    root=$work/base
    mkdir "$root" "$work/downloads"
    tar -C "$root" --exclude=./dev/* -xf "$cache/minbase.tar"
    for device in null zero random urandom; do
        [ -e "$root/dev/$device" ] || cp -a "/dev/$device" "$root/dev/"
    done
    cp /etc/resolv.conf "$root/etc/"
    [ ! -e /etc/hosts ] || cp /etc/hosts "$root/etc/"
    # No service is started in a root file system that is not running.
    printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
    chmod +x "$root/usr/sbin/policy-rc.d"
    # It does not outlive the run, so nothing has to reach the disk.
    echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/unsafe-io"
    offer "$build" lower
}

enter_fresh_root() {
    leave_root
    root=$work/root
    cp -a "$work/base" "$root"
    mount -t proc proc "$root/proc"
    # What one root has fetched the next need not fetch.
    mount --bind "$work/downloads" "$root/var/cache/apt/archives"
}

leave_root() {
    for mounted in proc var/cache/apt/archives; do
        ! mountpoint -q "$work/root/$mounted" || umount "$work/root/$mounted"
    done
    rm -rf --one-file-system "$work/root"
}

install_packages() { quietly inside apt-get install -y --no-install-recommends "$@"; }
