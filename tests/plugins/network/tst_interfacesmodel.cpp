// SPDX-License-Identifier: GPL-3.0-or-later
#include "interfacesmodel.h"

#include <linesdelegate.h>
#include <measquality.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

MeasuredInterface interface(int number) {
    NetworkInterface described;
    described.name = u"eth%1"_s.arg(number);
    described.number = number;
    described.state = LinkState::Up;
    return {described, TrafficRate{8000, 0}};
}

QList<MeasuredInterface> interfaces(const QList<int> &numbers) {
    QList<MeasuredInterface> list;
    for (const int number : numbers)
        list.append(interface(number));
    return list;
}

} // namespace

class InterfacesModelTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void rowTellsTheInterface();
    void stateHasALampAndAWord();
    void rowsFollow_data();
    void rowsFollow();
    void onlyTheRowThatGoesIsRemoved();
    void onlyTheRowThatChangedIsToldAnew();

private:
    std::unique_ptr<InterfacesModel> model;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

void InterfacesModelTest::init() {
    tester.reset();
    model = std::make_unique<InterfacesModel>();
    tester = std::make_unique<QAbstractItemModelTester>(model.get());
}

void InterfacesModelTest::rowTellsTheInterface() {
    MeasuredInterface shown = interface(3);
    shown.interface.counters = {1'500'000, 20};
    shown.interface.addresses = QStringList{u"10.0.0.1"_s};
    model->show({shown});
    QCOMPARE(model->index(0, InterfacesModel::Name).data().toString(), u"eth3"_s);
    QCOMPARE(model->index(0, InterfacesModel::Addresses).data(LinesDelegate::SmallLines).toStringList(),
             QStringList{u"10.0.0.1"_s});
    QCOMPARE(model->index(0, InterfacesModel::Received).data().toString(), u"1.5 MB"_s);
    QCOMPARE(model->index(0, InterfacesModel::Received).data(LinesDelegate::SmallLines).toStringList(),
             QStringList{u"8 kbit/s"_s});
}

void InterfacesModelTest::stateHasALampAndAWord() {
    model->show({interface(1)});
    const QModelIndex name = model->index(0, InterfacesModel::Name);
    QCOMPARE(name.data(LinesDelegate::FirstLamp).toInt(), int(Good));
    QCOMPARE(name.data(LinesDelegate::SmallLines).toStringList(), QStringList{u"Up"_s});
}

void InterfacesModelTest::rowsFollow_data() {
    QTest::addColumn<QList<int>>("before");
    QTest::addColumn<QList<int>>("after");
    QTest::newRow("first come") << QList<int>{} << QList<int>{1, 2, 3};
    QTest::newRow("one comes at the end") << QList<int>{1, 2} << QList<int>{1, 2, 3};
    QTest::newRow("one comes in between") << QList<int>{1, 3} << QList<int>{1, 2, 3};
    QTest::newRow("one goes") << QList<int>{1, 2, 3} << QList<int>{1, 3};
    QTest::newRow("all go") << QList<int>{1, 2, 3} << QList<int>{};
    QTest::newRow("all are others") << QList<int>{1, 2, 3} << QList<int>{4, 5};
    QTest::newRow("order changes") << QList<int>{1, 2, 3} << QList<int>{3, 1, 2};
}

void InterfacesModelTest::rowsFollow() {
    QFETCH(const QList<int>, before);
    QFETCH(const QList<int>, after);
    model->show(interfaces(before));
    model->show(interfaces(after));
    QStringList expected;
    QStringList shown;
    for (const int number : after)
        expected.append(u"eth%1"_s.arg(number));
    for (int row = 0; row < model->rowCount(); ++row)
        shown.append(model->index(row, InterfacesModel::Name).data().toString());
    QCOMPARE(shown, expected);
}

void InterfacesModelTest::onlyTheRowThatGoesIsRemoved() {
    model->show(interfaces({1, 2, 3}));
    const QSignalSpy removed(model.get(), &InterfacesModel::rowsRemoved);
    const QSignalSpy inserted(model.get(), &InterfacesModel::rowsInserted);
    model->show(interfaces({1, 3}));
    QCOMPARE(removed.count(), 1);
    QCOMPARE(inserted.count(), 0);
}

void InterfacesModelTest::onlyTheRowThatChangedIsToldAnew() {
    QList<MeasuredInterface> list = interfaces({1, 2, 3});
    model->show(list);
    const QSignalSpy changed(model.get(), &InterfacesModel::dataChanged);
    list[1].interface.counters.sent = 100;
    model->show(list);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toModelIndex().row(), 1);
}

QTEST_GUILESS_MAIN(InterfacesModelTest)
#include "tst_interfacesmodel.moc"
