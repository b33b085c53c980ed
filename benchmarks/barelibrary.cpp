// SPDX-License-Identifier: GPL-3.0-or-later

/// What a library of the floor's consists of. Nobody calls it: the library is only opened.
extern "C" void bareLibrary() {}
