// SPDX-License-Identifier: GPL-3.0-or-later
#include "leftoutnote.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class LeftOutNoteTest : public QObject {
    Q_OBJECT

private slots:
    void eachNoticeReadsItsOwnNote();
    void whatIsMissingOrDamagedIsTold_data();
    void whatIsMissingOrDamagedIsTold();
    void reportHoldsEverything();
};

void LeftOutNoteTest::eachNoticeReadsItsOwnNote() {
    const QString directory = qEnvironmentVariable("XDG_RUNTIME_DIR") + "/zr-launcher/left-out"_L1;
    QVERIFY(QDir().mkpath(directory));
    for (const QString &number : {u"1"_s, u"2"_s}) {
        QFile file(directory + u'/' + number + ".json"_L1);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"({"plugin":"plugin%"})"_ba.replace('%', number.toLatin1()));
    }
    QCOMPARE(LeftOutNote::read(1).plugin(), u"plugin1"_s);
    QCOMPARE(LeftOutNote::read(2).plugin(), u"plugin2"_s);
    QVERIFY(LeftOutNote::read(3).plugin().isEmpty());
}

void LeftOutNoteTest::whatIsMissingOrDamagedIsTold_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("cut short") << R"({"plugin":"clo)"_ba;
    QTest::newRow("a list") << "[1, 2]"_ba;
    QTest::newRow("another type") << R"({"plugin":7,"trace":{}})"_ba;
}

void LeftOutNoteTest::whatIsMissingOrDamagedIsTold() {
    QFETCH(const QByteArray, bytes);
    const LeftOutNote note = LeftOutNote::from(bytes);
    QCOMPARE(note.headline(), u"A plug-in was left out"_s);
    QVERIFY(!note.reason().isEmpty());
    QVERIFY(note.trace().isEmpty());
}

void LeftOutNoteTest::reportHoldsEverything() {
    const LeftOutNote note = LeftOutNote::from(
        R"({"plugin":"clock","library":"/opt/libclock.so","crashes":3,"trace":"one\ntwo"})");
    QCOMPARE(note.headline(), u"Left out: clock"_s);
    QVERIFY(note.reason().contains(u"libclock.so, 3 times"_s));
    for (const QString &part : {u"clock"_s, u"/opt/libclock.so"_s, u"one\ntwo"_s})
        QVERIFY(note.report().contains(part));
}

QTEST_MAIN(LeftOutNoteTest)
#include "tst_leftoutnote.moc"
