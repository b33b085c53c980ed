// SPDX-License-Identifier: GPL-3.0-or-later
#include "tablerow.h"

#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

QString figure(double value) {
    return QString::number(value, 'f', value < 10 ? 2 : 1);
}

} // namespace

void printTableRow(const QString &what, double launcher, double floor, const QString &aim, double limit) {
    const QString verdict = launcher <= limit ? u"met"_s : u"missed"_s;
    QTextStream(stdout) << "| " << what << " | " << figure(launcher) << " | " << figure(floor) << " | "
                        << (floor > 0 ? figure(launcher / floor) : u"none"_s) << " | " << aim << " | "
                        << (aim.isEmpty() ? QString() : verdict) << " |\n";
}

void printTableRowWithoutFloor(const QString &what, double launcher) {
    QTextStream(stdout) << "| " << what << " | " << figure(launcher) << " | none |  |  |  |\n";
}
