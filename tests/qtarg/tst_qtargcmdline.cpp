// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtarg.h"
#include "qtargcmdline.h"
#include "qtargconstraintiface.h"
#include "qtargexceptions.h"
#include "qtarghelp.h"
#include "qtarghelpprinteriface.h"
#include "qtargversion.h"
#include "qtargversionprinteriface.h"
#include "qtargvisitoriface.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

class CountingHelpPrinter : public QtArgHelpPrinterIface {
public:
    void print(const QList<QtArgIface *> &options, QChar delimiter) override {
        printed += u"%1 options, delimiter %2;"_s.arg(options.size()).arg(delimiter);
    }
    QString printed;
};

class CountingVersionPrinter : public QtArgVersionPrinterIface {
public:
    void print() override { ++prints; }
    int prints = 0;
};

class OnlyDigits : public QtArgConstraintIface {
public:
    bool accepts(const QVariant &value) const override {
        bool isNumber = false;
        value.toString().toInt(&isNumber);
        return isNumber;
    }
};

class RecordingVisitor : public QtArgVisitorIface {
public:
    void visit(const QtArgIface &option, QtArgCmdLineContext &context) override {
        visits.append(option.names().value(0) + (context.atEnd() ? u" at end"_s : u" with more"_s));
    }
    QStringList visits;
};

/// The message of what parse() throws; "run" when it returns.
QString outcomeOf(QtArgCmdLine &parser) {
    try {
        parser.parse();
    } catch (const QtHelpHasPrintedEx &) {
        return u"help printed"_s;
    } catch (const QtVersionHasPrintedEx &) {
        return u"version printed"_s;
    } catch (const QtArgBaseException &exception) {
        return exception.qwhat();
    }
    return u"run"_s;
}

QStringList wordsOf(const QString &line) {
    return QStringList{u"program"_s} + line.split(u' ', Qt::SkipEmptyParts);
}

} // namespace

class QtArgCmdLineTest : public QObject {
    Q_OBJECT

private slots:
    void wordsLeadToAnOutcome_data();
    void wordsLeadToAnOutcome();
    void valueIsTakenFromTheFollowingWord_data();
    void valueIsTakenFromTheFollowingWord();
    void requiredOptionHasToAppear_data();
    void requiredOptionHasToAppear();
    void constraintRefusesAValue_data();
    void constraintRefusesAValue();
    void visitorIsToldAfterTheValueWasTaken();
    void onlyTheLastFlagOfAGroupTakesAValue();
    void printersThatAreMissingAreMistakes();
    void helpPrinterGetsOptionsAndDelimiter();
    void anotherDelimiterWorksEverywhere();
    void exceptionsCarryTheirMessageInBothForms();
    void kindsOfExceptionsAreToldApart();
    void wordsComeBackInFront();
    void oddWordsEndTheParseOrderly_data();
    void oddWordsEndTheParseOrderly();
};

void QtArgCmdLineTest::wordsLeadToAnOutcome_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("no words") << u""_s << u"run"_s;
    QTest::newRow("flag") << u"-h"_s << u"help printed"_s;
    QTest::newRow("name") << u"--help"_s << u"help printed"_s;
    QTest::newRow("name cut short") << u"--he"_s << u"help printed"_s;
    QTest::newRow("other flag") << u"-v"_s << u"version printed"_s;
    QTest::newRow("shortest unique name") << u"--ve"_s << u"version printed"_s;
    QTest::newRow("shortest unique name of the other") << u"--vv"_s << u"version printed"_s;
    QTest::newRow("name that fits two") << u"--v"_s << u"Unknown argument: --v"_s;
    QTest::newRow("empty name fits all") << u"--"_s << u"Unknown argument: --"_s;
    QTest::newRow("name with more than it has") << u"--helper"_s << u"Unknown argument: --helper"_s;
    QTest::newRow("unknown flag") << u"-x"_s << u"Unknown argument: -x"_s;
    QTest::newRow("group ends with its first outcome") << u"-hv"_s << u"help printed"_s;
    QTest::newRow("group with an unknown flag first") << u"-xh"_s << u"Unknown argument: -x"_s;
    QTest::newRow("case matters") << u"-H"_s << u"Unknown argument: -H"_s;
    QTest::newRow("bare first word") << u"now"_s
                                     << u"Unexpected option: now. Argument \"\" doesn't expect any values."_s;
    QTest::newRow("bare word behind a flag")
        << u"-q now"_s << u"Unexpected option: now. Argument \"-q\" doesn't expect any values."_s;
    QTest::newRow("bare word behind a name")
        << u"--qui now"_s << u"Unexpected option: now. Argument \"--qui\" doesn't expect any values."_s;
    QTest::newRow("bare word with an equals sign")
        << u"a=b"_s << u"Unexpected option: a=b. Argument \"\" doesn't expect any values."_s;
    QTest::newRow("value nobody takes")
        << u"--quiet=1"_s << u"Unexpected option: 1. Argument \"--quiet\" doesn't expect any values."_s;
    QTest::newRow("help is printed before its value is missed") << u"--help=1"_s << u"help printed"_s;
    QTest::newRow("single delimiter is an empty group") << u"-"_s << u"run"_s;
    QTest::newRow("three delimiters") << u"---help"_s << u"Unknown argument: ---help"_s;
    QTest::newRow("same option twice") << u"-q -q --quiet -qq"_s << u"run"_s;
}

void QtArgCmdLineTest::wordsLeadToAnOutcome() {
    QFETCH(QString, line);
    QtArgCmdLine parser(wordsOf(line));
    CountingHelpPrinter helpPrinter;
    CountingVersionPrinter versionPrinter;
    QtArgHelp help(&parser);
    help.setPrinter(&helpPrinter);
    QtArgVersion version(&parser, 'v', u"version"_s);
    version.setPrinter(&versionPrinter);
    QtArgVersion longVersion(&parser, 'd', u"vversion"_s);
    longVersion.setPrinter(&versionPrinter);
    QtArg quiet(u'q', u"quiet"_s, u""_s, false, false);
    parser.addArg(help);
    parser.addArg(version);
    parser.addArg(&longVersion);
    parser.addArg(quiet);
    QTEST(outcomeOf(parser), "outcome");
}

void QtArgCmdLineTest::valueIsTakenFromTheFollowingWord_data() {
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QVariant>("value");
    const QString program = u"program"_s;
    QTest::newRow("behind the name") << QStringList{program, u"--file"_s, u"a"_s} << QVariant(u"a"_s);
    QTest::newRow("behind the flag") << QStringList{program, u"-f"_s, u"a"_s} << QVariant(u"a"_s);
    QTest::newRow("behind an equals sign") << QStringList{program, u"--file=a"_s} << QVariant(u"a"_s);
    QTest::newRow("behind a flag's equals sign") << QStringList{program, u"-f=a"_s} << QVariant(u"a"_s);
    QTest::newRow("split at the first equals sign")
        << QStringList{program, u"--file=a=b=c"_s} << QVariant(u"a=b=c"_s);
    QTest::newRow("word with an equals sign is taken whole")
        << QStringList{program, u"--file"_s, u"a=b"_s} << QVariant(u"a=b"_s);
    QTest::newRow("empty value is a value") << QStringList{program, u"--file="_s} << QVariant(u""_s);
    QTest::newRow("no value") << QStringList{program, u"--file"_s} << QVariant();
    QTest::newRow("whatever the word is")
        << QStringList{program, u"-f"_s, u"--file"_s} << QVariant(u"--file"_s);
    QTest::newRow("last one counts") << QStringList{program, u"-f"_s, u"a"_s, u"-f"_s, u"b"_s}
                                     << QVariant(u"b"_s);
}

void QtArgCmdLineTest::valueIsTakenFromTheFollowingWord() {
    QFETCH(QStringList, words);
    QtArgCmdLine parser(words);
    QtArg file(u'f', u"file"_s, u""_s, false, true);
    parser.addArg(file);
    QCOMPARE(outcomeOf(parser), u"run"_s);
    QVERIFY(file.isPresent());
    QTEST(file.value(), "value");
}

void QtArgCmdLineTest::requiredOptionHasToAppear_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("withValue");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("absent") << u""_s << false << u"Not defined mandatory argument: file"_s;
    QTest::newRow("absent, with value") << u""_s << true << u"Not defined mandatory argument: file"_s;
    QTest::newRow("value is missing") << u"-f"_s << true << u"Not defined value of the argument: file"_s;
    QTest::newRow("present") << u"-f"_s << false << u"run"_s;
    QTest::newRow("present with value") << u"-f a"_s << true << u"run"_s;
}

void QtArgCmdLineTest::requiredOptionHasToAppear() {
    QFETCH(QString, line);
    QFETCH(bool, withValue);
    QtArgCmdLine parser(wordsOf(line));
    QtArg file(u'f', u"file"_s, u""_s, true, withValue);
    parser.addArg(file);
    QTEST(outcomeOf(parser), "outcome");
}

void QtArgCmdLineTest::constraintRefusesAValue_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("accepted") << u"-n 12"_s << u"run"_s;
    QTest::newRow("refused")
        << u"-n twelve"_s << u"Constraint for the argument: number hasn't observed. Wrong value is: twelve"_s;
    QTest::newRow("no value, nothing to refuse") << u"-n"_s << u"run"_s;
}

void QtArgCmdLineTest::constraintRefusesAValue() {
    QFETCH(QString, line);
    OnlyDigits digits;
    QtArgCmdLine parser(wordsOf(line));
    QtArg number(u'n', u"number"_s, u""_s, false, true, nullptr, &digits);
    parser.addArg(number);
    QTEST(outcomeOf(parser), "outcome");
}

void QtArgCmdLineTest::visitorIsToldAfterTheValueWasTaken() {
    RecordingVisitor visitor;
    QtArgCmdLine parser(wordsOf(u"--number 12 -f"_s));
    QtArg number(u'n', u"number"_s, u""_s, false, true, &visitor);
    QtArg flag(u'f', u"flag"_s, u""_s, false, false, &visitor);
    parser.addArg(number);
    parser.addArg(flag);
    QCOMPARE(outcomeOf(parser), u"run"_s);
    QCOMPARE(visitor.visits, QStringList({u"number with more"_s, u"flag at end"_s}));
}

void QtArgCmdLineTest::onlyTheLastFlagOfAGroupTakesAValue() {
    QtArgCmdLine parser(wordsOf(u"-ab value"_s));
    QtArg first(u'a', u"first"_s, u""_s, false, true);
    QtArg second(u'b', u"second"_s, u""_s, false, true);
    parser.addArg(first);
    parser.addArg(second);
    QCOMPARE(outcomeOf(parser), u"run"_s);
    QVERIFY(first.isPresent());
    QVERIFY(!first.value().isValid());
    QCOMPARE(second.value().toString(), u"value"_s);
}

void QtArgCmdLineTest::printersThatAreMissingAreMistakes() {
    QtArgCmdLine helpParser(wordsOf(u"-h"_s));
    QtArgHelp help(&helpParser);
    helpParser.addArg(help);
    QCOMPARE(outcomeOf(helpParser), u"Help printer hasn't defined"_s);

    QtArgCmdLine versionParser(wordsOf(u"-v"_s));
    QtArgVersion version(&versionParser, 'v', u"version"_s);
    versionParser.addArg(version);
    QCOMPARE(outcomeOf(versionParser), u"Version printer hasn't defined"_s);
}

void QtArgCmdLineTest::helpPrinterGetsOptionsAndDelimiter() {
    CountingHelpPrinter printer;
    QtArgCmdLine parser(wordsOf(u"-h"_s));
    QtArgHelp help(&parser);
    help.setPrinter(&printer);
    parser.addArg(help);
    QCOMPARE(outcomeOf(parser), u"help printed"_s);
    QCOMPARE(printer.printed, u"1 options, delimiter -;"_s);
    QCOMPARE(help.description(), u"Print this help."_s);
}

void QtArgCmdLineTest::anotherDelimiterWorksEverywhere() {
    QtArgCmdLine parser(wordsOf(u"/f a //file=b -x"_s));
    parser.setDelimiter(u'/');
    QtArg file(u'f', u"file"_s, u""_s, false, true);
    parser.addArg(file);
    QCOMPARE(outcomeOf(parser), u"Unexpected option: -x. Argument \"//file\" doesn't expect any values."_s);
    QCOMPARE(file.value().toString(), u"b"_s);
    QtArgCmdLine unknown(wordsOf(u"//other"_s));
    unknown.setDelimiter(u'/');
    QCOMPARE(outcomeOf(unknown), u"Unknown argument: //other"_s);
}

void QtArgCmdLineTest::exceptionsCarryTheirMessageInBothForms() {
    const QtArgUnknownArgumentEx exception(u"Unknown argument: --ä"_s);
    QCOMPARE(exception.qwhat(), u"Unknown argument: --ä"_s);
    QCOMPARE(QByteArray(exception.what()), "Unknown argument: --ä"_ba);
}

void QtArgCmdLineTest::kindsOfExceptionsAreToldApart() {
    const auto parse = [](const QString &line) {
        QtArgCmdLine parser(wordsOf(line));
        QtArg file(u'f', u"file"_s, u""_s, true, true);
        parser.addArg(file);
        parser.parse();
    };
    QVERIFY_THROWS_EXCEPTION(QtArgUnknownArgumentEx, parse(u"-x"_s));
    QVERIFY_THROWS_EXCEPTION(QtArgUnexpectedOptionEx, parse(u"x"_s));
    QVERIFY_THROWS_EXCEPTION(QtArgNotDefinedMandatoryArgumentEx, parse(u""_s));
    QVERIFY_THROWS_EXCEPTION(QtArgNotDefinedOptionForTheArgumentEx, parse(u"-f"_s));
}

void QtArgCmdLineTest::wordsComeBackInFront() {
    QtArgCmdLineContext context({u"a"_s, u"b"_s});
    QCOMPARE(context.next(), u"a"_s);
    context.prepend(u"x"_s);
    QCOMPARE(context.next(), u"x"_s);
    QCOMPARE(context.next(), u"b"_s);
    QVERIFY(context.atEnd());
    QVERIFY(context.next().isNull());
    context.prepend(u"y"_s);
    QVERIFY(!context.atEnd());
    QCOMPARE(context.next(), u"y"_s);
}

void QtArgCmdLineTest::oddWordsEndTheParseOrderly_data() {
    QTest::addColumn<QStringList>("words");
    const QString program = u"program"_s;
    QTest::newRow("no program name") << QStringList();
    QTest::newRow("ten thousand words") << QStringList(10'000, u"-q"_s);
    QTest::newRow("a megabyte of flags") << QStringList{program, u'-' + QString(1'000'000, u'q')};
    QTest::newRow("a megabyte of name") << QStringList{program, "--"_L1 + QString(1'000'000, u'q')};
    QTest::newRow("NUL") << QStringList{program, u'-' + QString(QChar(u'\0'))};
    QTest::newRow("surrogate pair in a group") << QStringList{program, u"-q\U0001F50Bq"_s};
    QTest::newRow("empty word") << QStringList{program, QString()};
}

void QtArgCmdLineTest::oddWordsEndTheParseOrderly() {
    QFETCH(QStringList, words);
    QtArgCmdLine parser(words);
    QtArg quiet(u'q', u"quiet"_s, u""_s, false, false);
    parser.addArg(quiet);
    const QString outcome = outcomeOf(parser);
    QVERIFY2(outcome == "run"_L1 || outcome.startsWith("Un"_L1), qPrintable(outcome));
}

QTEST_GUILESS_MAIN(QtArgCmdLineTest)
#include "tst_qtargcmdline.moc"
