// SPDX-License-Identifier: GPL-3.0-or-later
#include "storecopy.h"

#include <storewriter.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class StoreCopyTest : public QObject {
    Q_OBJECT

private slots:
    void usersChangesAreFound_data();
    void usersChangesAreFound();
    void changeIsCarriedBackAtOnce();
    void changeIsCarriedBackAtTheEnd();
    void listOfTheUserStays();
    void otherFilesAreTheUsersOwn();
    void newFilesAreKept();
    void copyGoesAway();

private:
    static void write(const QString &file, const QByteArray &text);
    QString ownStore() const { return directory.filePath(u"own/talvenor/zr-launcher.conf"_s); }
    QString copiedStore() const { return directory.filePath(u"copy/talvenor/zr-launcher.conf"_s); }
    std::unique_ptr<StoreCopy> makeCopy() const;

    QTemporaryDir directory;

private slots:
    void init();
};

void StoreCopyTest::write(const QString &file, const QByteArray &text) {
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    QFile target(file);
    QVERIFY(target.open(QIODevice::WriteOnly));
    QCOMPARE(target.write(text), text.size());
}

std::unique_ptr<StoreCopy> StoreCopyTest::makeCopy() const {
    return std::make_unique<StoreCopy>(
        directory.filePath(u"own"_s), directory.filePath(u"copy"_s),
        StoreDifference{{{u"plugins/zr"_s, u"notice-a b"_s}, {u"notice-a/ver"_s, 2}}, {u"a"_s}});
}

void StoreCopyTest::init() {
    QDir(directory.filePath(u"own"_s)).removeRecursively();
    QVERIFY(storeChanges(ownStore(), {{u"plugins/zr"_s, u"a b"_s}, {u"system/refresh"_s, u"1"_s}}));
}

void StoreCopyTest::usersChangesAreFound_data() {
    using Values = QMap<QString, QVariant>;
    QTest::addColumn<Values>("before");
    QTest::addColumn<Values>("now");
    QTest::addColumn<Values>("changes");
    const Values two{{u"g/a"_s, u"1"_s}, {u"plugins/zr"_s, u"notice-a b"_s}, {u"notice-a/ver"_s, u"2"_s}};
    Values changed = two;
    changed[u"g/a"_s] = u"2"_s;
    Values added = two;
    added[u"h/b"_s] = u"3"_s;
    Values removed = two;
    removed.remove(u"g/a"_s);
    Values relisted = two;
    relisted[u"plugins/zr"_s] = u"b c notice-a"_s;
    Values moved = two;
    moved[u"notice-a/row"_s] = u"4"_s;
    QTest::newRow("nothing") << two << two << Values();
    QTest::newRow("another value") << two << changed << Values{{u"g/a"_s, u"2"_s}};
    QTest::newRow("new value") << two << added << Values{{u"h/b"_s, u"3"_s}};
    QTest::newRow("value gone") << two << removed << Values{{u"g/a"_s, QVariant()}};
    QTest::newRow("another list") << two << relisted << Values{{u"plugins/zr"_s, u"b c a"_s}};
    QTest::newRow("of the notice") << two << moved << Values();
}

void StoreCopyTest::usersChangesAreFound() {
    using Values = QMap<QString, QVariant>;
    QFETCH(const Values, before);
    QFETCH(const Values, now);
    QFETCH(const Values, changes);
    QCOMPARE(usersChanges(before, now, {u"a"_s}), changes);
}

void StoreCopyTest::changeIsCarriedBackAtOnce() {
    const std::unique_ptr<StoreCopy> copy = makeCopy();
    QVERIFY(copy->isMade());
    QVERIFY(storeValue(copiedStore(), u"system/refresh"_s, u"5"_s));
    QTRY_COMPARE(valuesIn(ownStore())[u"system/refresh"_s], QVariant(u"5"_s));
}

void StoreCopyTest::changeIsCarriedBackAtTheEnd() {
    std::unique_ptr<StoreCopy> copy = makeCopy();
    QVERIFY(storeValue(copiedStore(), u"system/refresh"_s, u"5"_s));
    copy.reset();
    QCOMPARE(valuesIn(ownStore())[u"system/refresh"_s], QVariant(u"5"_s));
}

void StoreCopyTest::listOfTheUserStays() {
    std::unique_ptr<StoreCopy> copy = makeCopy();
    QCOMPARE(valuesIn(copiedStore())[u"plugins/zr"_s], QVariant(u"notice-a b"_s));
    QVERIFY(storeValue(copiedStore(), u"x/y"_s, u"z"_s));
    copy.reset();
    QCOMPARE(valuesIn(ownStore())[u"plugins/zr"_s], QVariant(u"a b"_s));
    QVERIFY(!valuesIn(ownStore()).contains(u"notice-a/ver"_s));
}

void StoreCopyTest::otherFilesAreTheUsersOwn() {
    write(directory.filePath(u"own/other/file"_s), "before");
    write(directory.filePath(u"own/talvenor/other.conf"_s), "before");
    const std::unique_ptr<StoreCopy> copy = makeCopy();
    write(directory.filePath(u"copy/other/file"_s), "after");
    write(directory.filePath(u"copy/talvenor/other.conf"_s), "after");
    for (const QString &name : {u"own/other/file"_s, u"own/talvenor/other.conf"_s}) {
        QFile file(directory.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "after");
    }
}

void StoreCopyTest::newFilesAreKept() {
    std::unique_ptr<StoreCopy> copy = makeCopy();
    write(directory.filePath(u"copy/new/file"_s), "new");
    write(directory.filePath(u"copy/talvenor/new.conf"_s), "new");
    copy.reset();
    QVERIFY(QFile::exists(directory.filePath(u"own/new/file"_s)));
    QVERIFY(QFile::exists(directory.filePath(u"own/talvenor/new.conf"_s)));
}

void StoreCopyTest::copyGoesAway() {
    write(directory.filePath(u"own/other/file"_s), "precious");
    makeCopy().reset();
    QVERIFY(!QFile::exists(directory.filePath(u"copy"_s)));
    QVERIFY(QFile::exists(directory.filePath(u"own/other/file"_s)));
}

QTEST_GUILESS_MAIN(StoreCopyTest)
#include "tst_storecopy.moc"
