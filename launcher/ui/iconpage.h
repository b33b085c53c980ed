// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QGridLayout;
class ThumbScroll;

/// A collection's page: its layout is the grid of icons.
///
/// Five rows share the page. With more, each keeps the height it has on a page of five, and the page scrolls. A page
/// without a single icon says so. GUI thread only.
class IconPage : public QWidget {
    Q_OBJECT

public:
    explicit IconPage(QWidget *parent = nullptr);

    /// What stands on the page while it has no icon: a line, and another that says what to do about it.
    void setEmptyText(const QString &title, const QString &hint);
    /// The line that says so.
    QString emptyText() const { return emptyTitle; }

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int neededHeight(int rows) const;

    QGridLayout *grid;
    ThumbScroll *scroll;
    QString emptyTitle;
    QString emptyHint;
};
