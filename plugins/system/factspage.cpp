// SPDX-License-Identifier: GPL-3.0-or-later
#include "factspage.h"

#include "factrow.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

FactsPage::FactsPage(QWidget *parent) : QWidget(parent) {
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 8, 16, 8);
    layout->setSpacing(0);
    for (const auto kind :
         {SystemFacts::Launcher, SystemFacts::Kernel, SystemFacts::Host, SystemFacts::Processor,
          SystemFacts::Memory, SystemFacts::RootStorage, SystemFacts::HomeStorage, SystemFacts::Uptime}) {
        const bool leadsOn = kind == SystemFacts::RootStorage || kind == SystemFacts::HomeStorage;
        auto *const row = new FactRow(leadsOn ? FactRow::LeadsOn : FactRow::Plain, this);
        if (leadsOn)
            connect(row, &FactRow::clicked, this, &FactsPage::storageWanted);
        layout->addWidget(row);
        rows.insert(kind, row);
    }
    rows.value(SystemFacts::RootStorage)->setObjectName(u"rowStorage"_s);
    layout->addStretch();
    setFocusProxy(rows.value(SystemFacts::RootStorage));
}

void FactsPage::show(const SystemState &state) {
    rows.value(SystemFacts::HomeStorage)->setVisible(state.home.has_value());
    for (auto row = rows.cbegin(); row != rows.cend(); ++row)
        row.value()->show(SystemFacts::fact(row.key(), state));
}
