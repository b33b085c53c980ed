// SPDX-License-Identifier: GPL-3.0-or-later
#include "storagemodel.h"

#include <amounts.h>
#include <linesdelegate.h>

using namespace Qt::Literals::StringLiterals;

void StorageModel::show(const QList<MountedVolume> &volumes) {
    const bool sameRows = volumes.size() == shownVolumes.size();
    if (!sameRows)
        beginResetModel();
    shownVolumes = volumes;
    if (!sameRows)
        endResetModel();
    else if (!volumes.isEmpty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int StorageModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shownVolumes.size());
}

int StorageModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QString StorageModel::text(const MountedVolume &mounted, int column) const {
    const Volume &volume = mounted.volume;
    switch (column) {
    case Place:
        return mounted.mount.directory;
    case Use:
        return u"%1%"_s.arg(Amounts::percentOf(volume.used, volume.total));
    case Used:
        return Amounts::bytes(volume.used);
    case Size:
        return Amounts::bytes(volume.total);
    case Free:
        return Amounts::bytes(volume.available);
    default:
        return {};
    }
}

QVariant StorageModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const MountedVolume &mounted = shownVolumes[index.row()];
    switch (role) {
    case LinesDelegate::StrongLine:
        return text(mounted, index.column());
    case LinesDelegate::SmallLines:
        if (index.column() == Place)
            return QStringList(mounted.mount.device + ", "_L1 + mounted.mount.type);
        return {};
    case Qt::TextAlignmentRole:
        return static_cast<int>(index.column() == Place ? Qt::AlignLeft : Qt::AlignRight);
    default:
        return {};
    }
}

QVariant StorageModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(section == Place ? Qt::AlignLeft : Qt::AlignRight);
    if (role != Qt::DisplayRole)
        return {};
    const QString captions[] = {tr("File system"), tr("Use"), tr("Used"), tr("Size"), tr("Free")};
    return section >= 0 && section < ColumnCount ? captions[section] : QString();
}
