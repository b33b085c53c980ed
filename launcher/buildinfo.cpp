// SPDX-License-Identifier: GPL-3.0-or-later
#include "buildinfo.h"

#include "revision.h"

const char *const build_name = "GUI launcher 0.0.12-0";

const char *const build_info =
    "made by " ZR_BUILDER ", on " __DATE__ ", " __TIME__ " from revision: " ZR_REVISION;

const char *const build_copyright = "Copyright (C) 2009 Talvenor\n"
                                    "License GPLv3+: GNU GPL version 3 or later\n"
                                    "<https://www.gnu.org/licenses/gpl-3.0.html>\n"
                                    "This is free software: you are free to change and redistribute it.\n"
                                    "There is NO WARRANTY, to the extent permitted by law.\n";
