// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardreplies.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class CardRepliesTest : public QObject {
    Q_OBJECT

private slots:
    void firstWordOfEachLineIsALed_data();
    void firstWordOfEachLineIsALed();
    void statesAreInTheOrderOfTheirKeys();
};

void CardRepliesTest::firstWordOfEachLineIsALed_data() {
    QTest::addColumn<QString>("alarms");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("words behind it") << u"alpha on\nbeta"_s << QStringList{u"alpha"_s, u"beta"_s};
    QTest::newRow("blank lines") << u"\nalpha\n\n\nbeta\n"_s << QStringList{u"alpha"_s, u"beta"_s};
    QTest::newRow("line of blanks") << u"alpha\n   \nbeta"_s << QStringList{u"alpha"_s, u"beta"_s};
    QTest::newRow("blanks before it") << u"  alpha  on"_s << QStringList{u"alpha"_s};
    QTest::newRow("tab is no blank") << u"al\tpha on"_s << QStringList{u"al\tpha"_s};
    QTest::newRow("same name twice") << u"a 1\na 2"_s << QStringList{u"a"_s, u"a"_s};
    QTest::newRow("no reply") << QString() << QStringList();
}

void CardRepliesTest::firstWordOfEachLineIsALed() {
    QFETCH(QString, alarms);
    QTEST(ledNamesIn(alarms), "names");
}

void CardRepliesTest::statesAreInTheOrderOfTheirKeys() {
    const QVariantMap indicators{{u"b"_s, 1}, {u"a"_s, u"present"_s}, {u"c"_s, QVariantMap()}};
    QCOMPARE(ledStatesOf(indicators),
             (QList<QPair<QString, QString>>{{u"a"_s, u"present"_s}, {u"b"_s, u"1"_s}, {u"c"_s, QString()}}));
}

QTEST_GUILESS_MAIN(CardRepliesTest)
#include "tst_cardreplies.moc"
