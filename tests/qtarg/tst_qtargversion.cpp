// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtargversion.h"

#include "outcome.h"
#include "qtargcmdline.h"
#include "silentprinters.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class QtArgVersionTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }

    void goesByTheGivenFlagAndName();
    void eachVersionHasItsOwnPrinter();
    void missingPrinterIsAMistake();
};

void QtArgVersionTest::goesByTheGivenFlagAndName() {
    QtArgCmdLine parser(wordsOf(u""_s));
    const QtArgVersion version(&parser, 'd', u"vversion"_s);
    QCOMPARE(version.flags(), QList<QChar>{u'd'});
    QCOMPARE(version.names(), QStringList{u"vversion"_s});
    QCOMPARE(version.description(), u"Print version."_s);
    QVERIFY(!version.isRequired());
    QVERIFY(!version.isWithValue());
}

void QtArgVersionTest::eachVersionHasItsOwnPrinter() {
    SilentVersionPrinter shortPrinter;
    SilentVersionPrinter longPrinter;
    QtArgCmdLine parser(wordsOf(u"-d"_s));
    QtArgVersion version(&parser, 'v', u"version"_s);
    version.setPrinter(&shortPrinter);
    QtArgVersion longVersion(&parser, 'd', u"vversion"_s);
    longVersion.setPrinter(&longPrinter);
    parser.addArg(version);
    parser.addArg(longVersion);
    QCOMPARE(outcomeOf(parser), u"version printed"_s);
    QCOMPARE(shortPrinter.prints, 0);
    QCOMPARE(longPrinter.prints, 1);
}

void QtArgVersionTest::missingPrinterIsAMistake() {
    QtArgCmdLine parser(wordsOf(u"--version"_s));
    QtArgVersion version(&parser, 'v', u"version"_s);
    parser.addArg(version);
    QCOMPARE(outcomeOf(parser), u"Version printer hasn't defined"_s);
}

QTEST_GUILESS_MAIN(QtArgVersionTest)
#include "tst_qtargversion.moc"
