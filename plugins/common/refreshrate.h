// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

#include <chrono>

/// How often live figures are read anew: a value that the user chooses, "refresh" in the group "system", in
/// seconds.
namespace RefreshRate {

QList<std::chrono::seconds> choices();
/// The stored choice; the first of the choices where none of them is stored.
std::chrono::seconds configured();
void store(std::chrono::seconds interval);

} // namespace RefreshRate
