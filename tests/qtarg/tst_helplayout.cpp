// SPDX-License-Identifier: GPL-3.0-or-later
#include "helplayout.h"
#include "qtarg.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class HelpLayoutTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }

    void namesShowWhatMayBeLeftOut_data();
    void namesShowWhatMayBeLeftOut();
    void columnsAreAligned();
    void delimiterIsTheOneInUse();
    void textsThatLookLikePlaceholdersStay();
    void noOptionsMakeNoText();
};

void HelpLayoutTest::namesShowWhatMayBeLeftOut_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("others");
    QTest::addColumn<QString>("shown");
    const QStringList launcher{u"help"_s, u"version"_s, u"vversion"_s};
    QTest::newRow("help") << u"help"_s << launcher.mid(1) << u"h[elp]"_s;
    QTest::newRow("version") << u"version"_s << QStringList{u"help"_s, u"vversion"_s} << u"ve[rsion]"_s;
    QTest::newRow("vversion") << u"vversion"_s << launcher.mid(0, 2) << u"vv[ersion]"_s;
    QTest::newRow("alone") << u"file"_s << QStringList() << u"f[ile]"_s;
    QTest::newRow("start of another") << u"ver"_s << QStringList{u"version"_s} << u"ver"_s;
    QTest::newRow("continues another") << u"version"_s << QStringList{u"ver"_s} << u"vers[ion]"_s;
    QTest::newRow("one letter") << u"x"_s << QStringList() << u"x"_s;
}

void HelpLayoutTest::namesShowWhatMayBeLeftOut() {
    QFETCH(QString, name);
    QFETCH(QStringList, others);
    QTEST(abbreviated(name, others), "shown");
}

void HelpLayoutTest::columnsAreAligned() {
    QtArg help(u'h', u"help"_s, u"Print this help."_s, false, false);
    QtArg output(u'o', u"output"_s, u"Where to write."_s, false, true);
    output.addFlag(u'w');
    output.addName(u"write-to"_s);
    QtArg flagOnly(u'x', QString(), u"No name."_s, false, false);
    QtArg nameOnly(QChar(), u"quiet"_s, u"No flag."_s, false, false);
    QCOMPARE(helpText({&help, &output, &flagOnly, &nameOnly}, u'-'),
             u"  -h      --h[elp]                   Print this help.\n"
             "  -o, -w  --o[utput], --w[rite-to]   Where to write.\n"
             "  -x                                 No name.\n"
             "          --q[uiet]                  No flag.\n"_s);
}

void HelpLayoutTest::delimiterIsTheOneInUse() {
    QtArg help(u'h', u"help"_s, u"Print this help."_s, false, false);
    QCOMPARE(helpText({&help}, u'/'), u"  /h  //h[elp]   Print this help.\n"_s);
}

void HelpLayoutTest::textsThatLookLikePlaceholdersStay() {
    QtArg option(u'x', u"%newLine%"_s, u"%beforeFlags%"_s, false, false);
    QCOMPARE(helpText({&option}, u'-'), u"  -x  --%[newLine%]   %beforeFlags%\n"_s);
}

void HelpLayoutTest::noOptionsMakeNoText() {
    QCOMPARE(helpText({}, u'-'), QString());
}

QTEST_GUILESS_MAIN(HelpLayoutTest)
#include "tst_helplayout.moc"
