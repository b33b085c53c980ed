// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QButtonGroup;
class QLabel;
class QStackedLayout;

/// The floor of a page switch and of a lamp: two pages of ten icon tiles in a bare stacked layout, a caption, a
/// selector button for each page, and one label. Nothing behind it.
class BareScreen : public QWidget {
    Q_OBJECT

public:
    /// As large as the launcher's page and as one of its lamps with its name.
    BareScreen(const QSize &pageSize, const QSize &lampSize);

    /// Presses the selector button of a page.
    void choosePage(int index);
    /// Changes the text of the label.
    void changeLabel(bool isSet);

private:
    void showPage(int index);

    QLabel *caption;
    QLabel *lamp;
    QStackedLayout *pages = nullptr;
    QButtonGroup *selectors;
};
