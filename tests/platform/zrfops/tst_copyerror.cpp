// SPDX-License-Identifier: GPL-3.0-or-later
#include "copyerror.h"

#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class CopyErrorTest : public QObject {
    Q_OBJECT

private slots:
    void everyCodeOfRsyncHasASentenceOfItsOwn();
    void unknownCodeHasASentenceToo();
    void descriptionHoldsTheCodeAndWhatRsyncSaid();
    void ownCodesAreNotTakenForRsyncs();
};

void CopyErrorTest::everyCodeOfRsyncHasASentenceOfItsOwn() {
    QSet<QString> sentences;
    const QList<int> codes{1, 2, 3, 4, 5, 6, 10, 11, 12, 13, 14, 20, 21, 22, 23, 24, 25, 30, 35, -1, -2};
    for (const int code : codes) {
        QVERIFY(CopyError::sentence(code).endsWith(u'.'));
        sentences.insert(CopyError::sentence(code));
    }
    QCOMPARE(sentences.size(), codes.size());
    QVERIFY(!sentences.contains(CopyError::sentence(99)));
}

void CopyErrorTest::unknownCodeHasASentenceToo() {
    QCOMPARE(CopyError::description(99, {}),
             u"The copy failed for an unknown reason. (rsync: exit code 99)"_s);
}

void CopyErrorTest::descriptionHoldsTheCodeAndWhatRsyncSaid() {
    QCOMPARE(CopyError::description(23, u"rsync: a: denied"_s),
             u"Some files could not be copied. (rsync: exit code 23)\nrsync: a: denied"_s);
}

void CopyErrorTest::ownCodesAreNotTakenForRsyncs() {
    QCOMPARE(CopyError::description(CopyError::Busy, {}), u"Another copy is still running."_s);
}

QTEST_GUILESS_MAIN(CopyErrorTest)
#include "tst_copyerror.moc"
