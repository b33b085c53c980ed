// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariant>

/// Accepts or refuses the value of an option.
class QtArgConstraintIface {
public:
    virtual ~QtArgConstraintIface() = default;

    virtual bool accepts(const QVariant &value) const = 0;
};
