// SPDX-License-Identifier: GPL-3.0-or-later
#include "leftoutnotes.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class LeftOutNotesTest : public QObject {
    Q_OBJECT

private slots:
    void everyPlaceHasANoticeOfItsOwn();
    void withoutNoticesLeftThePluginIsLeftOutAllTheSame();
    void noticeTakesTheCell();
    void noticeWithoutCellGetsNone();
    void noteHoldsWhatIsKnown();
};

void LeftOutNotesTest::everyPlaceHasANoticeOfItsOwn() {
    const QList<ListedPlugin> plugins{{u"zr"_s, u"a"_s, u"/a"_s},
                                      {u"zr"_s, u"b"_s, u"/b"_s},
                                      {u"e1"_s, u"a"_s, u"/a"_s},
                                      {u"zr"_s, u"c"_s, u"/c"_s}};
    const QList<Replacement> replaced =
        replacements(plugins, {{u"/c"_s, 3, u"C"_s}, {u"/a"_s, 4, u"A"_s}, {u"/gone"_s, 3, {}}}, 8);
    QCOMPARE(replaced,
             QList<Replacement>(
                 {{1, plugins[3], 3, u"C"_s}, {2, plugins[0], 4, u"A"_s}, {3, plugins[2], 4, u"A"_s}}));
}

void LeftOutNotesTest::withoutNoticesLeftThePluginIsLeftOutAllTheSame() {
    const QList<ListedPlugin> plugins{{u"zr"_s, u"a"_s, u"/a"_s}, {u"zr"_s, u"b"_s, u"/b"_s}};
    const QList<Replacement> replaced = replacements(plugins, {{u"/a"_s, 3, {}}, {u"/b"_s, 3, {}}}, 1);
    QCOMPARE(replaced.first().notice, 1);
    QCOMPARE(replaced.last().notice, 0);
}

void LeftOutNotesTest::noticeTakesTheCell() {
    const QTemporaryDir directory;
    QSettings store(directory.filePath(u"store.conf"_s), QSettings::IniFormat);
    store.setValue(u"plugins/zr"_s, u"a b"_s);
    store.setValue(u"b/row"_s, 3);
    store.setValue(u"b/col"_s, 2);
    const StoreDifference difference =
        differenceFor({{1, {u"zr"_s, u"a"_s, u"/a"_s}, 3, {}}, {2, {u"zr"_s, u"b"_s, u"/b"_s}, 3, {}}}, store,
                      u"../shipped/"_s);
    QCOMPARE(difference.values[u"plugins/zr"_s].toString(), u"notice-a notice-b"_s);
    QCOMPARE(difference.values[u"notice-b/name"_s].toString(), u"../shipped/libnotice2.so"_s);
    QCOMPARE(difference.values[u"notice-b/ver"_s].toInt(), 2);
    QCOMPARE(difference.values[u"notice-b/row"_s].toInt(), 3);
    QCOMPARE(difference.values[u"notice-b/col"_s].toInt(), 2);
    QCOMPARE(difference.leftOut, QStringList({u"a"_s, u"b"_s}));
}

void LeftOutNotesTest::noticeWithoutCellGetsNone() {
    const QTemporaryDir directory;
    QSettings store(directory.filePath(u"store.conf"_s), QSettings::IniFormat);
    const StoreDifference difference =
        differenceFor({{1, {u"zr"_s, u"a"_s, u"/a"_s}, 3, {}}}, store, QString());
    QVERIFY(!difference.values.contains(u"notice-a/row"_s));
    QCOMPARE(difference.values[u"notice-a/name"_s].toString(), u"libnotice1.so"_s);
}

void LeftOutNotesTest::noteHoldsWhatIsKnown() {
    const QTemporaryDir directory;
    const QString notes = directory.filePath(u"left-out"_s);
    writeNotes(notes, {{2, {u"zr"_s, u"old"_s, u"/old"_s}, 3, {}}});
    writeNotes(notes, {{1, {u"zr"_s, u"clock"_s, u"/p/clock.so"_s}, 3, u"one\ntwo"_s}});
    QCOMPARE(QDir(notes).entryList(QDir::Files), QStringList{u"1.json"_s});
    QFile file(notes + "/1.json"_L1);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QJsonDocument::fromJson(file.readAll()).object(), QJsonObject({{u"plugin"_s, u"clock"_s},
                                                                            {u"library"_s, u"/p/clock.so"_s},
                                                                            {u"crashes"_s, 3},
                                                                            {u"trace"_s, u"one\ntwo"_s}}));
}

QTEST_GUILESS_MAIN(LeftOutNotesTest)
#include "tst_leftoutnotes.moc"
