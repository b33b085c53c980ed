// SPDX-License-Identifier: GPL-3.0-or-later
#include "interfaceaddresses.h"

#include <QFile>

#include <memory>

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <netinet/in.h>

namespace {

QString addressText(const ifaddrs &entry) {
    char text[INET6_ADDRSTRLEN] = "";
    if (entry.ifa_addr->sa_family == AF_INET)
        ::inet_ntop(AF_INET, &reinterpret_cast<const sockaddr_in *>(entry.ifa_addr)->sin_addr, text,
                    sizeof text);
    else
        ::inet_ntop(AF_INET6, &reinterpret_cast<const sockaddr_in6 *>(entry.ifa_addr)->sin6_addr, text,
                    sizeof text);
    return QString::fromLatin1(text);
}

} // namespace

QHash<QString, QStringList> interfaceAddresses() {
    ifaddrs *first = nullptr;
    if (::getifaddrs(&first) != 0)
        return {};
    const std::unique_ptr<ifaddrs, void (*)(ifaddrs *)> entries(first, ::freeifaddrs);
    QHash<QString, QStringList> addresses;
    for (const int family : {AF_INET, AF_INET6}) {
        for (const ifaddrs *entry = first; entry; entry = entry->ifa_next) {
            if (entry->ifa_addr && entry->ifa_addr->sa_family == family)
                addresses[QFile::decodeName(entry->ifa_name)].append(addressText(*entry));
        }
    }
    return addresses;
}
