// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtargdefaulthelpprinter.h"

#include "outcome.h"
#include "printed.h"
#include "qtargcmdline.h"
#include "qtarghelp.h"
#include "qtargversion.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class QtArgDefaultHelpPrinterTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }

    void launchersOptionsArePrinted_data();
    void launchersOptionsArePrinted();
    void columnsOfMixedWidthAreAligned();
    void printingTwiceGivesTheSameText();
    void descriptionStandsAloneWithoutOptions();
};

void QtArgDefaultHelpPrinterTest::launchersOptionsArePrinted_data() {
    QTest::addColumn<QChar>("delimiter");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QByteArray>("text");
    const QByteArray help = "The program 1.0.\n"
                            "  -h  --h[elp]       Print this help.\n"
                            "  -v  --ve[rsion]    Print version.\n"
                            "  -d  --vv[ersion]   Print version.\n"_ba;
    QTest::newRow("flag") << QChar(u'-') << u"-h"_s << help;
    QTest::newRow("name") << QChar(u'-') << u"--help"_s << help;
    QTest::newRow("name cut short") << QChar(u'-') << u"--he"_s << help;
    QTest::newRow("group prints the help only") << QChar(u'-') << u"-hv"_s << help;
    QTest::newRow("value nobody takes") << QChar(u'-') << u"--help=1"_s << help;
    QTest::newRow("other delimiter") << QChar(u'+') << u"++help"_s
                                     << QByteArray(help).replace("--", "++").replace("  -", "  +");
}

void QtArgDefaultHelpPrinterTest::launchersOptionsArePrinted() {
    QFETCH(QChar, delimiter);
    QFETCH(QString, line);
    QtArgCmdLine parser(wordsOf(line));
    parser.setDelimiter(delimiter);
    QtArgDefaultHelpPrinter printer(u"The program 1.0."_s);
    QtArgHelp help(&parser);
    help.setPrinter(&printer);
    QtArgVersion version(&parser, 'v', u"version"_s);
    QtArgVersion longVersion(&parser, 'd', u"vversion"_s);
    parser.addArg(help);
    parser.addArg(version);
    parser.addArg(longVersion);

    QString outcome;
    const QByteArray printed = printedBy([&] { outcome = outcomeOf(parser); });
    QCOMPARE(outcome, u"help printed"_s);
    QTEST(printed, "text");
}

void QtArgDefaultHelpPrinterTest::columnsOfMixedWidthAreAligned() {
    QtArg output(u'o', u"output"_s, u"Куда писать."_s, false, true);
    output.addFlag(u'w');
    output.addName(u"write-to"_s);
    QtArg flagOnly(u'ж', QString(), u"Без имени."_s, false, false);
    QtArg nameOnly(QChar(), u"тихо"_s, u"Без флага."_s, false, false);
    QtArg silent(u's', u"s"_s, QString(), false, false);
    QtArgDefaultHelpPrinter printer(u"Программа."_s);
    QCOMPARE(printedBy([&] {
                 printer.print({&output, &flagOnly, &nameOnly, &silent}, u'-');
             }),
             "Программа.\n"
             "  -o, -w  --o[utput], --w[rite-to]   Куда писать.\n"
             "  -ж                                 Без имени.\n"
             "          --т[ихо]                   Без флага.\n"
             "  -s      --s                        \n"_ba);
}

void QtArgDefaultHelpPrinterTest::printingTwiceGivesTheSameText() {
    QtArg quiet(u'q', u"quiet"_s, u"Say nothing."_s, false, false);
    QtArgDefaultHelpPrinter printer(u"The program."_s);
    const auto print = [&] { printer.print({&quiet}, u'-'); };
    QCOMPARE(printedBy(print), "The program.\n  -q  --q[uiet]   Say nothing.\n"_ba);
    QCOMPARE(printedBy(print), "The program.\n  -q  --q[uiet]   Say nothing.\n"_ba);
}

void QtArgDefaultHelpPrinterTest::descriptionStandsAloneWithoutOptions() {
    QtArgDefaultHelpPrinter printer(u"The program."_s);
    QCOMPARE(printedBy([&] { printer.print({}, u'-'); }), "The program.\n"_ba);
}

QTEST_GUILESS_MAIN(QtArgDefaultHelpPrinterTest)
#include "tst_qtargdefaulthelpprinter.moc"
