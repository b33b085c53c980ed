// SPDX-License-Identifier: GPL-3.0-or-later
#include "reportsmodel.h"

#include <amounts.h>
#include <linesdelegate.h>

#include <QLocale>

#include <algorithm>

void ReportsModel::show(const QList<ReportFile> &files) {
    beginResetModel();
    shownFiles = files;
    endResetModel();
}

QByteArray ReportsModel::nameAt(int row) const {
    return shownFiles.value(row).name;
}

int ReportsModel::rowOf(const QByteArray &name) const {
    const auto file = std::find_if(shownFiles.cbegin(), shownFiles.cend(),
                                   [&](const ReportFile &candidate) { return candidate.name == name; });
    return file == shownFiles.cend() ? -1 : static_cast<int>(file - shownFiles.cbegin());
}

int ReportsModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shownFiles.size());
}

int ReportsModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ReportsModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ReportFile &file = shownFiles[index.row()];
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(index.column() == Name ? Qt::AlignLeft : Qt::AlignRight);
    if (role != LinesDelegate::StrongLine)
        return {};
    switch (index.column()) {
    case Name:
        return shownName(file.name);
    case Size:
        return Amounts::bytes(file.size);
    case Date:
        return QLocale().toString(file.modified, QLocale::ShortFormat);
    default:
        return {};
    }
}

QVariant ReportsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(section == Name ? Qt::AlignLeft : Qt::AlignRight);
    if (role != Qt::DisplayRole)
        return {};
    const QString captions[] = {tr("Name"), tr("Size"), tr("Date")};
    return section >= 0 && section < ColumnCount ? captions[section] : QString();
}
