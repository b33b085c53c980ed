// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtargcmdlinecontext.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class QtArgCmdLineContextTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }

    void wordsComeInOrder();
    void absentWordIsNull();
    void emptyWordIsAWord();
    void wordPutBackComesNext();
    void wordPutBackBehindTheLastOneComesNext();
    void wordsPutBackInFrontOfTheFirstCome();
    void takenWordOutlivesTheOnePutInItsPlace();
    void callersListIsLeftAlone();
};

void QtArgCmdLineContextTest::wordsComeInOrder() {
    QtArgCmdLineContext context({u"a"_s, u"b"_s});
    QVERIFY(!context.atEnd());
    QCOMPARE(context.next(), u"a"_s);
    QCOMPARE(context.next(), u"b"_s);
    QVERIFY(context.atEnd());
}

void QtArgCmdLineContextTest::absentWordIsNull() {
    QVERIFY(QtArgCmdLineContext::m_null.isNull());
    QtArgCmdLineContext context;
    QVERIFY(context.atEnd());
    QVERIFY(context.next().isNull());
    QVERIFY(context.atEnd());
}

void QtArgCmdLineContextTest::emptyWordIsAWord() {
    QtArgCmdLineContext context({u""_s});
    QVERIFY(!context.atEnd());
    QCOMPARE(context.next(), u""_s);
    QVERIFY(context.atEnd());
}

void QtArgCmdLineContextTest::wordPutBackComesNext() {
    QtArgCmdLineContext context({u"a"_s, u"b"_s});
    context.next();
    context.prepend(u"x"_s);
    QCOMPARE(context.next(), u"x"_s);
    QCOMPARE(context.next(), u"b"_s);
}

void QtArgCmdLineContextTest::wordPutBackBehindTheLastOneComesNext() {
    QtArgCmdLineContext context({u"a"_s});
    context.next();
    context.prepend(u"x"_s);
    QVERIFY(!context.atEnd());
    QCOMPARE(context.next(), u"x"_s);
    QVERIFY(context.atEnd());
}

void QtArgCmdLineContextTest::wordsPutBackInFrontOfTheFirstCome() {
    QtArgCmdLineContext context({u"a"_s});
    context.prepend(u"x"_s);
    context.prepend(u"y"_s);
    QCOMPARE(context.next(), u"y"_s);
    QCOMPARE(context.next(), u"x"_s);
    QCOMPARE(context.next(), u"a"_s);
    QVERIFY(context.atEnd());
}

void QtArgCmdLineContextTest::takenWordOutlivesTheOnePutInItsPlace() {
    QtArgCmdLineContext context({u"a"_s});
    const auto &taken = context.next();
    context.prepend(u"x"_s);
    QCOMPARE(taken, u"a"_s);
}

void QtArgCmdLineContextTest::callersListIsLeftAlone() {
    const QStringList words{u"a"_s, u"b"_s};
    QtArgCmdLineContext context(words);
    context.next();
    context.prepend(u"x"_s);
    QCOMPARE(words, QStringList({u"a"_s, u"b"_s}));
}

QTEST_GUILESS_MAIN(QtArgCmdLineContextTest)
#include "tst_qtargcmdlinecontext.moc"
