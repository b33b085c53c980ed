// SPDX-License-Identifier: GPL-3.0-or-later
#include "refreshwindow.h"

#include <checkbutton.h>
#include <fontsizes.h>
#include <refreshrate.h>

#include <QButtonGroup>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int touchHeight = 52;
constexpr int longestTextWidth = 600;

} // namespace

RefreshWindow::RefreshWindow(QWidget *parent) : PluginWindow(parent), choiceGroup(new QButtonGroup(this)) {
    setWindowTitle(tr("Refresh rate"));
    auto *const caption = new QLabel(tr("Read the figures of the System window anew every"));
    caption->setFont(FontSizes::sized(font(), FontSizes::Text, QFont::Normal));
    caption->setWordWrap(true);
    caption->setMaximumWidth(longestTextWidth);

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 24, 28, 24);
    layout->setSpacing(16);
    layout->addWidget(caption);
    layout->addLayout(makeChoices());
    layout->addStretch();
    connect(choiceGroup, &QButtonGroup::idClicked, this, &RefreshWindow::store);
}

QLayout *RefreshWindow::makeChoices() {
    const QString texts[] = {tr("1 second"), tr("2 seconds"), tr("5 seconds")};
    auto *const row = new QHBoxLayout;
    row->setSpacing(8);
    qsizetype number = 0;
    for (const std::chrono::seconds interval : RefreshRate::choices()) {
        auto *const button = new CheckButton(texts[number++]);
        button->setFixedHeight(touchHeight);
        button->setAutoDefault(true);
        choiceGroup->addButton(button, static_cast<int>(interval.count()));
        row->addWidget(button);
    }
    row->addStretch();
    return row;
}

void RefreshWindow::showEvent(QShowEvent *event) {
    PluginWindow::showEvent(event);
    choiceGroup->button(static_cast<int>(RefreshRate::configured().count()))->setChecked(true);
}

void RefreshWindow::store(int seconds) {
    RefreshRate::store(std::chrono::seconds(seconds));
}
