// SPDX-License-Identifier: GPL-3.0-or-later
#include "blockdifference.h"

#include "picturedifference.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int blockSize = 16;
/// A twentieth of a letter of the kernel's console, white on dark.
constexpr qint64 toleratedInABlock = 3 * blockSize * blockSize;

} // namespace

QString blockDifference(const QImage &one, const QImage &other) {
    if (one.isNull() || one.size() != other.size())
        return u"%1 x %2 pixels, not %3 x %4"_s.arg(one.width())
            .arg(one.height())
            .arg(other.width())
            .arg(other.height());
    int blocks = 0;
    QRect all;
    for (int y = 0; y < one.height(); y += blockSize) {
        for (int x = 0; x < one.width(); x += blockSize) {
            const QRect block(x, y, qMin(blockSize, one.width() - x), qMin(blockSize, one.height() - y));
            if (differenceBetween(one.copy(block), other.copy(block)) <= toleratedInABlock)
                continue;
            ++blocks;
            all |= block;
        }
    }
    if (blocks == 0)
        return {};
    return u"%1 squares differ, within %2 x %3 pixels at (%4, %5)"_s.arg(blocks)
        .arg(all.width())
        .arg(all.height())
        .arg(all.x())
        .arg(all.y());
}
