// SPDX-License-Identifier: GPL-3.0-or-later
#include "configfile.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    damageIn(QByteArrayView(data, static_cast<qsizetype>(size)));
    return 0;
}
