// SPDX-License-Identifier: GPL-3.0-or-later
#include "interfacesmodel.h"

#include "networktexts.h"

#include <amounts.h>
#include <linesdelegate.h>
#include <measquality.h>

#include <QSet>

namespace {

MeasQuality lampOf(LinkState state) {
    switch (state) {
    case LinkState::Up:
        return Good;
    case LinkState::Waiting:
        return Warning;
    case LinkState::NoLink:
        return Bad;
    case LinkState::Off:
    case LinkState::Unknown:
        break;
    }
    return NotMeasured;
}

bool isFigure(int column) {
    return column == InterfacesModel::Received || column == InterfacesModel::Sent;
}

bool isSameInterface(const NetworkInterface &one, const NetworkInterface &other) {
    return one.number == other.number && one.name == other.name;
}

} // namespace

void InterfacesModel::show(const QList<MeasuredInterface> &interfaces) {
    removeGone(interfaces);
    for (int row = 0; row < interfaces.size(); ++row) {
        const MeasuredInterface &measured = interfaces[row];
        if (row < rows.size() && isSameInterface(rows[row].interface, measured.interface)) {
            setRow(row, measured);
        } else {
            beginInsertRows({}, row, row);
            rows.insert(row, measured);
            endInsertRows();
        }
    }
    // Those whose order has changed were inserted anew above; what is left of them is below.
    if (rows.size() > interfaces.size()) {
        beginRemoveRows({}, static_cast<int>(interfaces.size()), static_cast<int>(rows.size()) - 1);
        rows.resize(interfaces.size());
        endRemoveRows();
    }
}

void InterfacesModel::removeGone(const QList<MeasuredInterface> &interfaces) {
    QSet<QPair<int, QString>> present;
    for (const MeasuredInterface &measured : interfaces)
        present.insert({measured.interface.number, measured.interface.name});
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (present.contains({rows[row].interface.number, rows[row].interface.name}))
            continue;
        beginRemoveRows({}, row, row);
        rows.removeAt(row);
        endRemoveRows();
    }
}

void InterfacesModel::setRow(int row, const MeasuredInterface &measured) {
    if (rows[row] == measured)
        return;
    rows[row] = measured;
    emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

int InterfacesModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int InterfacesModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QString InterfacesModel::strongLine(const MeasuredInterface &measured, int column) {
    switch (column) {
    case Name:
        return measured.interface.name;
    case Received:
        return Amounts::bytes(measured.interface.counters.received);
    case Sent:
        return Amounts::bytes(measured.interface.counters.sent);
    default:
        return {};
    }
}

QStringList InterfacesModel::smallLines(const MeasuredInterface &measured, int column) {
    const std::optional<TrafficRate> &rate = measured.rate;
    switch (column) {
    case Name:
        return {NetworkTexts::linkText(measured.interface)};
    case Addresses:
        return NetworkTexts::addressLines(measured.interface.addresses);
    case Received:
        return {NetworkTexts::rateText(rate ? std::optional(rate->received) : std::nullopt)};
    case Sent:
        return {NetworkTexts::rateText(rate ? std::optional(rate->sent) : std::nullopt)};
    default:
        return {};
    }
}

QVariant InterfacesModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const MeasuredInterface &measured = rows[index.row()];
    switch (role) {
    case LinesDelegate::StrongLine:
        return strongLine(measured, index.column());
    case LinesDelegate::SmallLines:
        return smallLines(measured, index.column());
    case LinesDelegate::FirstLamp:
        return index.column() == Name ? QVariant(lampOf(measured.interface.state)) : QVariant();
    case Qt::TextAlignmentRole:
        return static_cast<int>(isFigure(index.column()) ? Qt::AlignRight : Qt::AlignLeft);
    default:
        return {};
    }
}

QVariant InterfacesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(isFigure(section) ? Qt::AlignRight : Qt::AlignLeft);
    if (role != Qt::DisplayRole)
        return {};
    const QString captions[] = {tr("Interface"), tr("Addresses"), tr("Received"), tr("Sent")};
    return section >= 0 && section < ColumnCount ? captions[section] : QString();
}
