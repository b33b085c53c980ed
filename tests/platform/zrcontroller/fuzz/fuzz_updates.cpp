// SPDX-License-Identifier: GPL-3.0-or-later
#include "updatereader.h"

#include <cstdlib>

/// An update stream in two parts yields what it yields in one.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const UpdateReader::Batch whole = UpdateReader().feed(bytes);
    UpdateReader reader;
    UpdateReader::Batch parts = reader.feed(bytes.first(bytes.size() / 2));
    const UpdateReader::Batch rest = reader.feed(bytes.sliced(bytes.size() / 2));
    parts.updates += rest.updates;
    if (parts.updates != whole.updates || parts.damagedLines + rest.damagedLines != whole.damagedLines)
        std::abort();
    return 0;
}
