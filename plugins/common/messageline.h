// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// One line that tells the user how something went: a lamp and a text. Takes no room while it has nothing to
/// tell.
class MessageLine : public QWidget {
    Q_OBJECT

public:
    explicit MessageLine(QWidget *parent = nullptr);

    void tellSuccess(const QString &message);
    void tellFailure(const QString &message);
    void clear();
    QString message() const { return shownMessage; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void tell(const QString &message, bool success);

    QString shownMessage;
    bool isSuccess = true;
};
