# SPDX-License-Identifier: GPL-3.0-or-later
# Writes revision.h: who builds, and from which revision. Run by the build as
#   cmake -D SOURCE_DIR=... -D OUTPUT=... -P ZrRevision.cmake
# The file is only touched when it would change, so that nothing is compiled again for nothing.

execute_process(COMMAND id -un OUTPUT_VARIABLE builder OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
if(NOT builder)
    set(builder unknown)
endif()

# A source archive may be unpacked inside somebody else's working tree: only our own history counts.
set(revision 0)
if(EXISTS ${SOURCE_DIR}/.git)
    execute_process(COMMAND git -C ${SOURCE_DIR} rev-list --count HEAD
        OUTPUT_VARIABLE count OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE failed ERROR_QUIET)
    if(NOT failed)
        set(revision ${count})
        execute_process(COMMAND git -C ${SOURCE_DIR} status --porcelain --untracked-files=no
            OUTPUT_VARIABLE modified ERROR_QUIET)
        if(modified)
            string(APPEND revision m)
        endif()
    endif()
endif()

file(CONFIGURE OUTPUT ${OUTPUT} CONTENT
"// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#define ZR_BUILDER \"${builder}\"
#define ZR_REVISION \"${revision}\"
")
