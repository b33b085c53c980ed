# SPDX-License-Identifier: GPL-3.0-or-later
# What packages leave in $root when they go.

note_files() { inside dpkg-query --listfiles $packages | grep . | sort -u >"$work/files"; }

# Of what was noted; directories that belong to others may stay.
list_left_files() {
    sort -u "$root"/var/lib/dpkg/info/*.list >"$work/owned"
    while read -r file; do
        [ -e "$root$file" ] || [ -L "$root$file" ] || continue
        [ -d "$root$file" ] && grep -qxF "$file" "$work/owned" && continue
        echo "$file"
    done <"$work/files"
}

check_removed() {
    left=$(list_left_files)
    [ "$left" = "$(sort "$here/debian/conffiles")" ] || fail "a removal leaves not just the configuration: $left"
}

check_purged() {
    left=$(list_left_files)
    [ -z "$left" ] || fail "left after a purge: $left"
    # Links and notes that scripts made.
    left=$(cd "$root" && find etc usr var \( -name '*zr-*' -o -name 'libzr*' -o -name talvenor \) -print | sort)
    [ -z "$left" ] || fail "left after a purge: $left"
}
