// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtarghelp.h"

#include "outcome.h"
#include "qtargcmdline.h"
#include "silentprinters.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class QtArgHelpTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }

    void describesItself();
    void printerGetsEveryOptionAndTheDelimiter();
    void missingPrinterIsAMistake();
    void missingPrinterDoesNotMatterUntilHelpIsWanted();
};

void QtArgHelpTest::describesItself() {
    QtArgCmdLine parser(wordsOf(u""_s));
    const QtArgHelp help(&parser);
    QCOMPARE(help.flags(), QList<QChar>{u'h'});
    QCOMPARE(help.names(), QStringList{u"help"_s});
    QCOMPARE(help.description(), u"Print this help."_s);
    QVERIFY(!help.isRequired());
    QVERIFY(!help.isWithValue());
}

void QtArgHelpTest::printerGetsEveryOptionAndTheDelimiter() {
    SilentHelpPrinter printer;
    QtArgCmdLine parser(wordsOf(u"//help"_s));
    parser.setDelimiter(u'/');
    QtArgHelp help(&parser);
    help.setPrinter(&printer);
    QtArg file(u'f', u"file"_s, u""_s, true, true);
    parser.addArg(help);
    parser.addArg(file);
    QCOMPARE(outcomeOf(parser), u"help printed"_s);
    QCOMPARE(printer.printedOptions, QList<QtArgIface *>({&help, &file}));
    QCOMPARE(printer.printedDelimiter, QChar(u'/'));
    QCOMPARE(printer.prints, 1);
}

void QtArgHelpTest::missingPrinterIsAMistake() {
    QtArgCmdLine parser(wordsOf(u"-h"_s));
    QtArgHelp help(&parser);
    parser.addArg(help);
    QCOMPARE(outcomeOf(parser), u"Help printer hasn't defined"_s);
}

void QtArgHelpTest::missingPrinterDoesNotMatterUntilHelpIsWanted() {
    QtArgCmdLine parser(wordsOf(u""_s));
    QtArgHelp help(&parser);
    parser.addArg(help);
    QCOMPARE(outcomeOf(parser), u"run"_s);
}

QTEST_GUILESS_MAIN(QtArgHelpTest)
#include "tst_qtarghelp.moc"
