// SPDX-License-Identifier: GPL-3.0-or-later
#include "barescreen.h"

#include <icontile.h>

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int pageCount = 2;
constexpr int iconsPerPage = 10;
constexpr int columns = 2;
/// The launcher's, so that the tiles are as large as there.
constexpr QMargins pageMargins(40, 6, 40, 6);
constexpr int columnSpacing = 40;
constexpr int rowSpacing = 8;

QWidget *makePage() {
    auto *const page = new QWidget;
    auto *const grid = new QGridLayout(page);
    grid->setContentsMargins(pageMargins);
    grid->setHorizontalSpacing(columnSpacing);
    grid->setVerticalSpacing(rowSpacing);
    for (int cell = 0; cell < iconsPerPage; ++cell)
        grid->addWidget(new IconTile(QIcon(), u"Measurement"_s), cell / columns, cell % columns);
    return page;
}

} // namespace

BareScreen::BareScreen(const QSize &pageSize, const QSize &lampSize)
    : caption(new QLabel), lamp(new QLabel(this)), selectors(new QButtonGroup(this)) {
    // A widget of its own: the switch paints the layout's whole parent again.
    auto *const area = new QWidget;
    area->setFixedSize(pageSize);
    pages = new QStackedLayout(area);
    auto *const buttons = new QHBoxLayout;
    for (int i = 0; i < pageCount; ++i) {
        pages->addWidget(makePage());
        auto *const button = new QPushButton(u"Page %1"_s.arg(i));
        button->setCheckable(true);
        selectors->addButton(button, i);
        buttons->addWidget(button);
    }
    connect(selectors, &QButtonGroup::idClicked, this, &BareScreen::showPage);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(lampSize.width(), 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(area);
    layout->addLayout(buttons);
    lamp->resize(lampSize);
}

void BareScreen::choosePage(int index) {
    selectors->button(index)->click();
}

void BareScreen::changeLabel(bool isSet) {
    lamp->setText(isSet ? u"LOS"_s : u"AIS"_s);
}

void BareScreen::showPage(int index) {
    pages->setCurrentIndex(index);
    caption->setText(u"Page %1"_s.arg(index));
}
