// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardaddress.h"

#include <cstdlib>

/// Addresses as a card service tells them.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const std::optional<CardAddress> address =
        cardAddress(QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    if (!address)
        return 0;
    const bool hasNumber = address->kind != CardAddress::Unix;
    if (address->place.isEmpty() || (address->number > 0) != hasNumber)
        std::abort();
    if (address->kind == CardAddress::Tcp && address->number > 65535)
        std::abort();
    return 0;
}
