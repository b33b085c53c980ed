// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardswatcher.h"

#include "debuglines.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// Real files, and the kernel's own notices of what happens to them.
class CardsWatcherTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void newFileIsAnInsertion();
    void fileThatIsNotEnoughIsLookedAtAgain();
    void presentFilesAreToldAtTheFirstChangeInOrderOfName();
    void rewrittenFileIsARemovalAndAnInsertion();
    void shortenedFileKeepsItsCard();
    void removedFileIsARemoval();
    void blankInTheNameCutsIt();
    void carriageReturnMakesTheSerialNumberNought();
    void textsEndAtANul();
    void seededPathIsNeverTold();
    void emptySeedIsNotKept();
    void emptyPathWatchesNothing();
    void missingDirectoryIsTold();
    void whatCannotBeOpenedIsTold();
    void signalsFitTheCardManagersSlots();

private:
    QString path(const QString &name) const { return directory->filePath(name); }
    /// A new file must not be seen before it is whole.
    void put(const QString &name, const QByteArray &bytes) const {
        QFile file(path(name + ".new"_L1));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        QVERIFY(QFile::rename(file.fileName(), path(name)));
    }
    void rewrite(const QString &name, const QByteArray &bytes) const {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::ReadWrite));
        // One write that makes one notice; the rest of a longer text goes with another.
        file.write(bytes);
        file.flush();
        if (file.size() != bytes.size())
            file.resize(bytes.size());
    }
    void watch() {
        watcher = std::make_unique<CardsWatcher>(nullptr, directory->path());
        connect(watcher.get(), &CardsWatcher::cardInserted, this,
                [this](const QString &name, int sn, const QString &iface, const QString &poller) {
                    events.append(u"+%1|%2|%3|%4"_s.arg(name).arg(sn).arg(iface, poller));
                });
        connect(watcher.get(), &CardsWatcher::cardRemoved, this,
                [this](const QString &name, int sn) { events.append(u"-%1|%2"_s.arg(name).arg(sn)); });
    }

    std::unique_ptr<QTemporaryDir> directory;
    std::unique_ptr<CardsWatcher> watcher;
    QStringList events;
};

void CardsWatcherTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    watcher.reset();
    directory = std::make_unique<QTemporaryDir>();
    events.clear();
}

void CardsWatcherTest::newFileIsAnInsertion() {
    watch();
    put(u"a.info"_s, "e1\n1234\nx\ny\n");
    QTRY_COMPARE(events, QStringList{u"+e1|1234|x|y"_s});
}

void CardsWatcherTest::fileThatIsNotEnoughIsLookedAtAgain() {
    watch();
    DebugLines debug;
    put(u"a.info"_s, "e1\n1\nx");
    QTRY_VERIFY(debug.lines().contains(u"QList(\"e1\", \"1\", \"x\")  is not enough"_s));
    QVERIFY(debug.lines().contains(u"\t  File is  \""_s + path(u"a.info"_s) + u'"'));
    QVERIFY(debug.lines().contains(u"Directory is  \""_s + directory->path() + u'"'));
    QVERIFY(events.isEmpty());
    rewrite(u"a.info"_s, "e1\n1\nx\n");
    put(u"other"_s, "");
    QTRY_COMPARE(events, QStringList{u"+e1|1|x|"_s});
}

void CardsWatcherTest::presentFilesAreToldAtTheFirstChangeInOrderOfName() {
    put(u"b.info"_s, "gbe\n2\nx\ny\n");
    put(u"A.info"_s, "e1\n1\nx\ny\n");
    watch();
    QCoreApplication::processEvents();
    QVERIFY(events.isEmpty());
    put(u"c.info"_s, "da\n3\nx\ny\n");
    QTRY_COMPARE(events, QStringList({u"+e1|1|x|y"_s, u"+gbe|2|x|y"_s, u"+da|3|x|y"_s}));
}

void CardsWatcherTest::rewrittenFileIsARemovalAndAnInsertion() {
    watch();
    put(u"a.info"_s, "e1\n1\nx\ny\n");
    QTRY_COMPARE(events.size(), 1);
    rewrite(u"a.info"_s, "e1\n1\nx\ny\n");
    QTRY_COMPARE(events.mid(1, 2), QStringList({u"-e1|1"_s, u"+e1|1|x|y"_s}));
}

void CardsWatcherTest::shortenedFileKeepsItsCard() {
    watch();
    put(u"a.info"_s, "e1\n1\nx\ny\n");
    QTRY_COMPARE(events.size(), 1);
    QSignalSpy changes(watcher.get(), &QFileSystemWatcher::fileChanged);
    QFile(path(u"a.info"_s)).resize(4);
    QTRY_VERIFY(!changes.isEmpty());
    QCOMPARE(events.size(), 1);
    QVERIFY(QFile::remove(path(u"a.info"_s)));
    QTRY_COMPARE(events, QStringList({u"+e1|1|x|y"_s, u"-e1|1"_s}));
}

void CardsWatcherTest::removedFileIsARemoval() {
    watch();
    put(u"a.info"_s, "e1\n-7\nx\ny\n");
    QTRY_COMPARE(events.size(), 1);
    QVERIFY(QFile::remove(path(u"a.info"_s)));
    QTRY_COMPARE(events, QStringList({u"+e1|-7|x|y"_s, u"-e1|-7"_s}));
    put(u"a.info"_s, "e1\n8\nx\ny\n");
    QTRY_COMPARE(events.value(2), u"+e1|8|x|y"_s);
}

void CardsWatcherTest::blankInTheNameCutsIt() {
    watch();
    put(u"a.info"_s, "big e1\n1234\nx\ny\n");
    QTRY_COMPARE(events, QStringList{u"+big e1|1234|x|y"_s});
    QVERIFY(QFile::remove(path(u"a.info"_s)));
    QTRY_COMPARE(events.value(1), u"-big|0"_s);
}

void CardsWatcherTest::carriageReturnMakesTheSerialNumberNought() {
    watch();
    put(u"a.info"_s, "e1\r\n1234\r\nx\r\ny\r\n");
    QTRY_COMPARE(events, QStringList{u"+e1\r|0|x\r|y\r"_s});
    QVERIFY(QFile::remove(path(u"a.info"_s)));
    QTRY_COMPARE(events.value(1), u"-e1\r|0"_s);
}

void CardsWatcherTest::textsEndAtANul() {
    watch();
    put(u"a.info"_s, QByteArray("e1\0x\n12\0x\nx\ny\n", 15));
    QTRY_COMPARE(events, QStringList{u"+e1|12|x|y"_s});
    QVERIFY(QFile::remove(path(u"a.info"_s)));
    QTRY_COMPARE(events.value(1), u"-e1|12"_s);
}

void CardsWatcherTest::seededPathIsNeverTold() {
    watch();
    watcher->addMatch(path(u"a.info"_s), u"e1 1"_s);
    put(u"a.info"_s, "e1\n1\nx\ny\n");
    put(u"b.info"_s, "gbe\n2\nx\ny\n");
    QTRY_COMPARE(events, QStringList{u"+gbe|2|x|y"_s});
    QVERIFY(QFile::remove(path(u"a.info"_s)));
    QVERIFY(QFile::remove(path(u"b.info"_s)));
    QTRY_COMPARE(events, QStringList({u"+gbe|2|x|y"_s, u"-gbe|2"_s}));
}

void CardsWatcherTest::emptySeedIsNotKept() {
    watch();
    watcher->addMatch(path(u"a.info"_s), u""_s);
    watcher->addMatch(u""_s, u"e1 1"_s);
    put(u"a.info"_s, "e1\n1\nx\ny\n");
    QTRY_COMPARE(events, QStringList{u"+e1|1|x|y"_s});
}

void CardsWatcherTest::emptyPathWatchesNothing() {
    DebugLines debug;
    const CardsWatcher nothing(nullptr, QString());
    QCOMPARE(debug.lines(), QStringList{u"Can't process empty path."_s});
    QVERIFY(nothing.directories().isEmpty());
}

void CardsWatcherTest::missingDirectoryIsTold() {
    watch();
    DebugLines debug;
    QVERIFY(directory->remove());
    QTRY_VERIFY(debug.lines().contains(u"Info dir tmp/user doesn't exist"_s));
}

void CardsWatcherTest::whatCannotBeOpenedIsTold() {
    watch();
    DebugLines debug;
    QVERIFY(QDir(directory->path()).mkdir(u"dir.info"_s));
    QTRY_VERIFY(debug.lines().contains(u"Can't open file  \""_s + path(u"dir.info"_s) + u'"'));
    put(u"e.info"_s, "e1\n1\nx\ny\n");
    QTRY_COMPARE(events, QStringList{u"+e1|1|x|y"_s});
}

void CardsWatcherTest::signalsFitTheCardManagersSlots() {
    const QMetaObject &meta = CardsWatcher::staticMetaObject;
    QVERIFY(meta.indexOfSignal("cardInserted(QString,int,QString,QString)") >= 0);
    QVERIFY(meta.indexOfSignal("cardRemoved(QString,int)") >= 0);
    QVERIFY(meta.indexOfSlot("addMatch(QString,QString)") >= 0);
    QVERIFY(meta.indexOfSlot("fileChanged(QString)") >= 0);
}

QTEST_GUILESS_MAIN(CardsWatcherTest)
#include "tst_cardswatcher.moc"
