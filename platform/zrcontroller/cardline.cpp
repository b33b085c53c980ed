// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardline.h"

#include "serialline.h"
#include "tcpline.h"
#include "unixline.h"

std::unique_ptr<CardLine> CardLine::make(const CardAddress &address) {
    switch (address.kind) {
    case CardAddress::Unix:
        return std::make_unique<UnixLine>(address.place);
    case CardAddress::Tcp:
        return std::make_unique<TcpLine>(address.place, static_cast<quint16>(address.number));
    case CardAddress::Serial:
        return std::make_unique<SerialLine>(address.place, address.number);
    }
    return nullptr;
}
