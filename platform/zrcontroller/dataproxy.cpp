// SPDX-License-Identifier: GPL-3.0-or-later
#include "dataproxy.h"

#include "measprocessor.h"

namespace {

constexpr qint64 shortestIntervalMs = 20;

} // namespace

DataProxy::DataProxy(const QString &name, MeasProcessor *measProcessor, QObject *controller)
    : QObject(controller), streamName(name), processor(measProcessor) {
    telling.setSingleShot(true);
    telling.setTimerType(Qt::PreciseTimer);
    connect(&telling, &QTimer::timeout, this, &DataProxy::tell);
}

void DataProxy::take(QVariantMap data) {
    if (processor)
        processor->process(data);
    currentData = std::move(data);
    tellSoon();
}

void DataProxy::doubt() {
    bool isChanged = false;
    for (QVariant &value : currentData) {
        isChanged |= value != QString();
        value = QString();
    }
    if (isChanged)
        tellSoon();
}

void DataProxy::forget() {
    if (currentData.isEmpty())
        return;
    currentData.clear();
    tellSoon();
}

void DataProxy::tellSoon() {
    if (telling.isActive())
        return;
    const qint64 toWait = sinceTold.isValid() ? shortestIntervalMs - sinceTold.elapsed() : 0;
    telling.start(static_cast<int>(qMax<qint64>(0, toWait)));
}

void DataProxy::tell() {
    sinceTold.start();
    // Listeners may change what they are given, and may cause the next update.
    QVariantMap data = currentData;
    emit updated(data, streamName);
}
