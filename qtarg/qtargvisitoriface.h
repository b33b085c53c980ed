// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QtArgCmdLineContext;
class QtArgIface;

/// Is told when an option is seen, after it took its value. May read further words and may throw.
class QtArgVisitorIface {
public:
    virtual ~QtArgVisitorIface() = default;

    virtual void visit(const QtArgIface &option, QtArgCmdLineContext &context) = 0;
};
