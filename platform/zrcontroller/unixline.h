// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cardline.h"

#include <QLocalSocket>

/// A stream socket of the Unix domain.
class UnixLine : public CardLine {
    Q_OBJECT

public:
    explicit UnixLine(const QString &path);

    void beginOpening() override;
    bool open(QDeadlineTimer deadline) override;
    void close() override;
    bool isOpen() const override;
    QIODevice *device() override { return &socket; }
    QString errorString() const override;

private:
    QString socketPath;
    QLocalSocket socket;
};
