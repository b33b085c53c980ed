// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtargcmdline.h"

#include "outcome.h"
#include "qtarg.h"
#include "qtarghelp.h"
#include "qtargversion.h"
#include "silentprinters.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString program = u"program"_s;

} // namespace

class QtArgCmdLineTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }

    void wordsLeadToAnOutcome_data();
    void wordsLeadToAnOutcome();
    void nameIsMatchedByItsBeginning_data();
    void nameIsMatchedByItsBeginning();
    void definitionsAreCheckedBeforeAnyWord();
    void firstMissingOptionIsTold();
    void onlyTheLastFlagOfAGroupTakesAValue();
    void anotherDelimiterWorksEverywhere_data();
    void anotherDelimiterWorksEverywhere();
    void optionsAreKeptInOrderOfAddition();
    void applicationsArgumentsAreReadWithoutItsName();
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
    QTest::newRow("name that fits two, with a value") << u"--v=1"_s << u"Unknown argument: --v"_s;
    QTest::newRow("empty name fits all") << u"--"_s << u"Unknown argument: --"_s;
    QTest::newRow("empty name with a value") << u"--=help"_s << u"Unknown argument: --"_s;
    QTest::newRow("name with more than it has") << u"--helper"_s << u"Unknown argument: --helper"_s;
    QTest::newRow("case matters in a name") << u"--Help"_s << u"Unknown argument: --Help"_s;
    QTest::newRow("unknown flag") << u"-x"_s << u"Unknown argument: -x"_s;
    QTest::newRow("unknown flag with a value") << u"-x=1"_s << u"Unknown argument: -x"_s;
    QTest::newRow("group ends with its first outcome") << u"-hv"_s << u"help printed"_s;
    QTest::newRow("group with an unknown flag first") << u"-xh"_s << u"Unknown argument: -x"_s;
    QTest::newRow("group with an unknown flag last") << u"-qx"_s << u"Unknown argument: -x"_s;
    QTest::newRow("delimiter inside a group") << u"-q-"_s << u"Unknown argument: --"_s;
    QTest::newRow("case matters in a flag") << u"-H"_s << u"Unknown argument: -H"_s;
    QTest::newRow("bare first word") << u"now"_s
                                     << u"Unexpected option: now. Argument \"\" doesn't expect any values."_s;
    QTest::newRow("bare word behind a flag")
        << u"-q now"_s << u"Unexpected option: now. Argument \"-q\" doesn't expect any values."_s;
    QTest::newRow("bare word behind a group")
        << u"-qi now"_s << u"Unexpected option: now. Argument \"-i\" doesn't expect any values."_s;
    QTest::newRow("bare word behind a name")
        << u"--qui now"_s << u"Unexpected option: now. Argument \"--qui\" doesn't expect any values."_s;
    QTest::newRow("bare word with an equals sign")
        << u"a=b"_s << u"Unexpected option: a=b. Argument \"\" doesn't expect any values."_s;
    QTest::newRow("bare word that looks like a placeholder")
        << u"-q %2"_s << u"Unexpected option: %2. Argument \"-q\" doesn't expect any values."_s;
    QTest::newRow("value nobody takes")
        << u"--quiet=1"_s << u"Unexpected option: 1. Argument \"--quiet\" doesn't expect any values."_s;
    QTest::newRow("empty value nobody takes")
        << u"-q="_s << u"Unexpected option: . Argument \"-q\" doesn't expect any values."_s;
    QTest::newRow("value nobody takes is an option word") << u"-q=--help"_s << u"help printed"_s;
    QTest::newRow("help is printed before its value is missed") << u"--help=1"_s << u"help printed"_s;
    QTest::newRow("single delimiter is an empty group") << u"-"_s << u"run"_s;
    QTest::newRow("empty group leaves the last option word")
        << u"-q - now"_s << u"Unexpected option: now. Argument \"-q\" doesn't expect any values."_s;
    QTest::newRow("three delimiters") << u"---help"_s << u"Unknown argument: ---help"_s;
    QTest::newRow("same option twice") << u"-q -q --quiet -qq"_s << u"run"_s;
    QTest::newRow("first outcome counts") << u"-q -v -h -x"_s << u"version printed"_s;
}

void QtArgCmdLineTest::wordsLeadToAnOutcome() {
    QFETCH(QString, line);
    QtArgCmdLine parser(wordsOf(line));
    SilentHelpPrinter helpPrinter;
    SilentVersionPrinter versionPrinter;
    QtArgHelp help(&parser);
    help.setPrinter(&helpPrinter);
    QtArgVersion version(&parser, 'v', u"version"_s);
    version.setPrinter(&versionPrinter);
    QtArgVersion longVersion(&parser, 'd', u"vversion"_s);
    longVersion.setPrinter(&versionPrinter);
    QtArg quiet(u'q', u"quiet"_s, u""_s, false, false);
    quiet.addFlag(u'i');
    parser.addArg(help);
    parser.addArg(version);
    parser.addArg(&longVersion);
    parser.addArg(quiet);
    QTEST(outcomeOf(parser), "outcome");
}

void QtArgCmdLineTest::nameIsMatchedByItsBeginning_data() {
    QTest::addColumn<QStringList>("firstNames");
    QTest::addColumn<QStringList>("secondNames");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("outcome");
    const QStringList none;
    const QStringList ver{u"ver"_s};
    const QStringList version{u"version"_s};
    QTest::newRow("whole name that begins another option's")
        << ver << version << u"--ver"_s << u"Unknown argument: --ver"_s;
    QTest::newRow("past the name that it begins with") << ver << version << u"--vers"_s << u"run"_s;
    QTest::newRow("two names of one option")
        << QStringList{u"ver"_s, u"version"_s} << none << u"--ver"_s << u"run"_s;
    QTest::newRow("empty name, the only option") << version << none << u"--"_s << u"run"_s;
    QTest::newRow("empty name, no option with a name")
        << none << none << u"--"_s << u"Unknown argument: --"_s;
    QTest::newRow("other script") << QStringList{u"справка"_s} << version << u"--спр"_s << u"run"_s;
    QTest::newRow("unknown in other script") << version << none << u"--спр"_s << u"Unknown argument: --спр"_s;
}

void QtArgCmdLineTest::nameIsMatchedByItsBeginning() {
    QFETCH(QStringList, firstNames);
    QFETCH(QStringList, secondNames);
    QFETCH(QString, line);
    QtArgCmdLine parser(wordsOf(line));
    QtArg first(u'a', QString(), u""_s, false, false);
    for (const QString &name : firstNames)
        first.addName(name);
    QtArg second(u'b', QString(), u""_s, false, false);
    for (const QString &name : secondNames)
        second.addName(name);
    parser.addArg(first);
    parser.addArg(second);
    QTEST(outcomeOf(parser), "outcome");
}

void QtArgCmdLineTest::definitionsAreCheckedBeforeAnyWord() {
    SilentHelpPrinter printer;
    QtArgCmdLine parser(wordsOf(u"--help"_s));
    QtArgHelp help(&parser);
    help.setPrinter(&printer);
    QtArg other(u'h', QString(), u""_s, false, false);
    parser.addArg(help);
    parser.addArg(other);
    QCOMPARE(outcomeOf(parser), u"Flag already in use: h."_s);
    QCOMPARE(printer.prints, 0);
}

void QtArgCmdLineTest::firstMissingOptionIsTold() {
    QtArgCmdLine parser(wordsOf(u"-b"_s));
    QtArg first(u'b', u"beta"_s, u""_s, true, false);
    QtArg second(u'c', u"gamma"_s, u""_s, true, false);
    QtArg third(u'a', u"alpha"_s, u""_s, true, false);
    parser.addArg(first);
    parser.addArg(second);
    parser.addArg(third);
    QCOMPARE(outcomeOf(parser), u"Not defined mandatory argument: gamma"_s);
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

void QtArgCmdLineTest::anotherDelimiterWorksEverywhere_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("flag and name") << u"/f a //file=b"_s << u"run"_s;
    QTest::newRow("default one is a bare word now")
        << u"//file=b -f"_s << u"Unexpected option: -f. Argument \"//file\" doesn't expect any values."_s;
    QTest::newRow("bare word behind a flag")
        << u"/q now"_s << u"Unexpected option: now. Argument \"/q\" doesn't expect any values."_s;
    QTest::newRow("unknown name") << u"//other"_s << u"Unknown argument: //other"_s;
    QTest::newRow("unknown flag") << u"/x"_s << u"Unknown argument: /x"_s;
    QTest::newRow("value like an option by default") << u"/f --file"_s << u"run"_s;
}

void QtArgCmdLineTest::anotherDelimiterWorksEverywhere() {
    QFETCH(QString, line);
    QtArgCmdLine parser(wordsOf(line));
    QCOMPARE(parser.delimiter(), QtArgCmdLine::defaultDelimiter);
    parser.setDelimiter(u'/');
    QCOMPARE(parser.delimiter(), QChar(u'/'));
    QtArg file(u'f', u"file"_s, u""_s, false, true);
    QtArg quiet(u'q', u"quiet"_s, u""_s, false, false);
    parser.addArg(file);
    parser.addArg(quiet);
    QTEST(outcomeOf(parser), "outcome");
}

void QtArgCmdLineTest::optionsAreKeptInOrderOfAddition() {
    QtArgCmdLine parser(wordsOf(u""_s));
    QtArg first(u'z', QString(), u""_s, false, false);
    QtArg second(u'a', QString(), u""_s, false, false);
    parser.addArg(first);
    parser.addArg(&second);
    QCOMPARE(parser.arguments(), QList<QtArgIface *>({&first, &second}));
}

void QtArgCmdLineTest::applicationsArgumentsAreReadWithoutItsName() {
    QByteArray words[] = {"program"_ba, "--file"_ba, "файл"_ba};
    char *argv[] = {words[0].data(), words[1].data(), words[2].data(), nullptr};
    int argc = 3;
    const QCoreApplication application(argc, argv);
    QtArgCmdLine parser;
    QtArg file(u'f', u"file"_s, u""_s, true, true);
    parser.addArg(file);
    QCOMPARE(outcomeOf(parser), u"run"_s);
    QCOMPARE(file.value().toString(), u"файл"_s);
}

void QtArgCmdLineTest::oddWordsEndTheParseOrderly_data() {
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("outcome");
    constexpr qsizetype megabyte = 1'000'000;
    const QString manyLetters(megabyte, u'q');
    QTest::newRow("no program name") << QStringList() << u"run"_s;
    QTest::newRow("empty word") << QStringList{program, QString()}
                                << u"Unexpected option: . Argument \"\" doesn't expect any values."_s;
    QTest::newRow("ten thousand words") << QStringList(10'000, u"-q"_s) << u"run"_s;
    QTest::newRow("a megabyte of flags") << QStringList{program, u'-' + manyLetters} << u"run"_s;
    QTest::newRow("a megabyte of name")
        << QStringList{program, "--"_L1 + manyLetters} << "Unknown argument: --"_L1 + manyLetters;
    QTest::newRow("a megabyte of bare word")
        << QStringList{program, manyLetters}
        << "Unexpected option: "_L1 + manyLetters + ". Argument \"\" doesn't expect any values."_L1;
    QTest::newRow("a megabyte of equals signs")
        << QStringList{program, u"-="_s.repeated(megabyte / 2)}
        << u"Unexpected option: . Argument \"\" doesn't expect any values."_s;
    QTest::newRow("a megabyte of options in one word")
        << QStringList{program, u"-q="_s.repeated(megabyte / 3)}
        << u"Unexpected option: . Argument \"-q\" doesn't expect any values."_s;
    const QString nul = QString(QChar(u'\0'));
    QTest::newRow("NUL as flag") << QStringList{program, u'-' + nul} << "Unknown argument: -"_L1 + nul;
    QTest::newRow("NUL in a name") << QStringList{program, "--q"_L1 + nul}
                                   << "Unknown argument: --q"_L1 + nul;
    QTest::newRow("letter of another script") << QStringList{program, u"-qж"_s} << u"Unknown argument: -ж"_s;
    QTest::newRow("surrogate pair in a group")
        << QStringList{program, u"-q\U0001F50Bq"_s} << u"Unknown argument: -\U0001F50B"_s;
    const QString half(QChar(u'\xD83D'));
    QTest::newRow("half a surrogate pair")
        << QStringList{program, u'-' + half} << "Unknown argument: -"_L1 + half;
}

void QtArgCmdLineTest::oddWordsEndTheParseOrderly() {
    QFETCH(QStringList, words);
    QFETCH(QString, outcome);
    QtArgCmdLine parser(words);
    QtArg quiet(u'q', u"quiet"_s, u""_s, false, false);
    parser.addArg(quiet);
    // Compared by hand: a megabyte of either text helps nobody.
    const QString actual = outcomeOf(parser);
    QVERIFY2(actual == outcome, qPrintable(actual.left(200)));
}

QTEST_APPLESS_MAIN(QtArgCmdLineTest)
#include "tst_qtargcmdline.moc"
