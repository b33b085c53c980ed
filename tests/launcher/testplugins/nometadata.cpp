// SPDX-License-Identifier: GPL-3.0-or-later
// A sound shared library that is no plug-in at all.
extern "C" int answer() {
    return 42;
}
