# SPDX-License-Identifier: GPL-3.0-or-later

# Ends with an error when the catalogue holds an entry without a finished translation:
#   cmake -D CATALOGUE=launcher_ru.ts -P ZrCatalogueCheck.cmake
# lrelease of Qt 6.4 itself only leaves such entries out.
file(READ ${CATALOGUE} text)
string(REGEX MATCHALL
    "<translation>[ \t\r\n]*</translation>|<translation/>|<translation[^>]*type=\"unfinished\"" unfinished "${text}")
list(LENGTH unfinished count)
if(count)
    message(FATAL_ERROR "${CATALOGUE} has ${count} unfinished entries; finish them in Qt Linguist.")
endif()
