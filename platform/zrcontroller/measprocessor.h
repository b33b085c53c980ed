// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantMap>

/// Looks through every update of a data stream before anybody else, to count, to scale or to add.
///
/// The caller keeps the processor and must keep it alive as long as the proxy that it was given to.
class MeasProcessor {
public:
    virtual ~MeasProcessor();

    /// Called in the GUI thread for each update in the order of arrival, also when several arrive at once. What is left
    /// in `data` becomes the proxy's.
    virtual void process(QVariantMap &data) = 0;
};
