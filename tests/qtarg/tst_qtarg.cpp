// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtarg.h"

#include "outcome.h"
#include "qtargcmdline.h"
#include "qtargconstraintiface.h"
#include "qtargvisitoriface.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString program = u"program"_s;

class OnlyDigits : public QtArgConstraintIface {
public:
    bool accepts(const QVariant &value) const override {
        bool isNumber = false;
        value.toString().toInt(&isNumber);
        return isNumber;
    }
};

/// Notes each visit, and reads one further word of each option called "pair".
class RecordingVisitor : public QtArgVisitorIface {
public:
    void visit(const QtArgIface &option, QtArgCmdLineContext &context) override {
        const QString name = option.names().value(0);
        visits.append(name + (context.atEnd() ? u" at end"_s : u" with more"_s));
        if (name == "pair"_L1)
            visits.append(context.next());
    }
    QStringList visits;
};

} // namespace

class QtArgTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }

    void isAbsentUntilSeen();
    void optionWithoutValueBecomesTrue();
    void valueIsTheFollowingWord_data();
    void valueIsTheFollowingWord();
    void requiredOptionHasToAppear_data();
    void requiredOptionHasToAppear();
    void messagesCallAnOptionWithoutNameByItsFlag();
    void constraintRefusesAValue_data();
    void constraintRefusesAValue();
    void constraintSeesTheValueOfAnOptionWithout();
    void visitorIsToldAfterTheValueWasTaken();
    void visitorMayReadFurtherWords();
    void visitorComesBeforeTheConstraint();
};

void QtArgTest::isAbsentUntilSeen() {
    const QtArg file(u'f', u"file"_s, u"Where to read."_s, true, true);
    QVERIFY(!file.isPresent());
    QVERIFY(!file.value().isValid());
    QVERIFY(file.isRequired());
    QVERIFY(file.isWithValue());
    QCOMPARE(file.flags(), QList<QChar>{u'f'});
    QCOMPARE(file.names(), QStringList{u"file"_s});
    QCOMPARE(file.description(), u"Where to read."_s);
}

void QtArgTest::optionWithoutValueBecomesTrue() {
    QtArgCmdLine parser(wordsOf(u"-q"_s));
    QtArg quiet(u'q', u"quiet"_s, u""_s, false, false);
    parser.addArg(quiet);
    QCOMPARE(outcomeOf(parser), u"run"_s);
    QVERIFY(quiet.isPresent());
    QCOMPARE(quiet.value(), QVariant(true));
}

void QtArgTest::valueIsTheFollowingWord_data() {
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("behind the name") << QStringList{program, u"--file"_s, u"a"_s} << QVariant(u"a"_s);
    QTest::newRow("behind the name cut short") << QStringList{program, u"--f"_s, u"a"_s} << QVariant(u"a"_s);
    QTest::newRow("behind the flag") << QStringList{program, u"-f"_s, u"a"_s} << QVariant(u"a"_s);
    QTest::newRow("behind an equals sign") << QStringList{program, u"--file=a"_s} << QVariant(u"a"_s);
    QTest::newRow("behind a flag's equals sign") << QStringList{program, u"-f=a"_s} << QVariant(u"a"_s);
    QTest::newRow("split at the first equals sign")
        << QStringList{program, u"--file=a=b=c"_s} << QVariant(u"a=b=c"_s);
    QTest::newRow("word with an equals sign is taken whole")
        << QStringList{program, u"--file"_s, u"a=b"_s} << QVariant(u"a=b"_s);
    QTest::newRow("empty value is a value") << QStringList{program, u"--file="_s} << QVariant(u""_s);
    QTest::newRow("empty word is a value") << QStringList{program, u"-f"_s, u""_s} << QVariant(u""_s);
    QTest::newRow("no value") << QStringList{program, u"--file"_s} << QVariant();
    QTest::newRow("option word") << QStringList{program, u"-f"_s, u"--file"_s} << QVariant(u"--file"_s);
    QTest::newRow("option word behind an equals sign")
        << QStringList{program, u"--file=--file=a"_s} << QVariant(u"--file=a"_s);
    QTest::newRow("single delimiter") << QStringList{program, u"-f"_s, u"-"_s} << QVariant(u"-"_s);
    QTest::newRow("other script") << QStringList{program, u"-f"_s, u"файл"_s} << QVariant(u"файл"_s);
    QTest::newRow("last one counts") << QStringList{program, u"-f"_s, u"a"_s, u"-f"_s, u"b"_s}
                                     << QVariant(u"b"_s);
    QTest::newRow("value stays when none follows later")
        << QStringList{program, u"-f"_s, u"a"_s, u"-f"_s} << QVariant(u"a"_s);
}

void QtArgTest::valueIsTheFollowingWord() {
    QFETCH(QStringList, words);
    QFETCH(QVariant, value);
    QtArgCmdLine parser(words);
    QtArg file(u'f', u"file"_s, u""_s, false, true);
    parser.addArg(file);
    QCOMPARE(outcomeOf(parser), u"run"_s);
    QVERIFY(file.isPresent());
    QCOMPARE(file.value(), value);
}

void QtArgTest::requiredOptionHasToAppear_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("withValue");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("absent") << u""_s << false << u"Not defined mandatory argument: file"_s;
    QTest::newRow("absent, with value") << u""_s << true << u"Not defined mandatory argument: file"_s;
    QTest::newRow("value is missing") << u"-f"_s << true << u"Not defined value of the argument: file"_s;
    QTest::newRow("present") << u"-f"_s << false << u"run"_s;
    QTest::newRow("present with value") << u"-f a"_s << true << u"run"_s;
    QTest::newRow("present with empty value") << u"-f="_s << true << u"run"_s;
}

void QtArgTest::requiredOptionHasToAppear() {
    QFETCH(QString, line);
    QFETCH(bool, withValue);
    QtArgCmdLine parser(wordsOf(line));
    QtArg file(u'f', u"file"_s, u""_s, true, withValue);
    parser.addArg(file);
    QTEST(outcomeOf(parser), "outcome");
}

void QtArgTest::messagesCallAnOptionWithoutNameByItsFlag() {
    QtArgCmdLine parser(wordsOf(u""_s));
    QtArg file(u'f', QString(), u""_s, true, true);
    parser.addArg(file);
    QCOMPARE(outcomeOf(parser), u"Not defined mandatory argument: f"_s);
}

void QtArgTest::constraintRefusesAValue_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("accepted") << u"-n 12"_s << u"run"_s;
    QTest::newRow("refused")
        << u"-n twelve"_s << u"Constraint for the argument: number hasn't observed. Wrong value is: twelve"_s;
    QTest::newRow("refused behind a name")
        << u"--num=x"_s << u"Constraint for the argument: number hasn't observed. Wrong value is: x"_s;
    QTest::newRow("empty value is refused")
        << u"-n="_s << u"Constraint for the argument: number hasn't observed. Wrong value is: "_s;
    QTest::newRow("value that looks like a placeholder")
        << u"-n %1"_s << u"Constraint for the argument: number hasn't observed. Wrong value is: %1"_s;
    QTest::newRow("no value, nothing to refuse") << u"-n"_s << u"run"_s;
    QTest::newRow("not the last of a group, nothing to refuse") << u"-nn 12"_s << u"run"_s;
}

void QtArgTest::constraintRefusesAValue() {
    QFETCH(QString, line);
    OnlyDigits digits;
    QtArgCmdLine parser(wordsOf(line));
    QtArg number(u'n', u"number"_s, u""_s, false, true, nullptr, &digits);
    parser.addArg(number);
    QTEST(outcomeOf(parser), "outcome");
}

void QtArgTest::constraintSeesTheValueOfAnOptionWithout() {
    OnlyDigits digits;
    QtArgCmdLine parser(wordsOf(u"-q"_s));
    QtArg quiet(u'q', u"quiet"_s, u""_s, false, false, nullptr, &digits);
    parser.addArg(quiet);
    QCOMPARE(outcomeOf(parser),
             u"Constraint for the argument: quiet hasn't observed. Wrong value is: true"_s);
}

void QtArgTest::visitorIsToldAfterTheValueWasTaken() {
    RecordingVisitor visitor;
    QtArgCmdLine parser(wordsOf(u"--number 12 -f"_s));
    QtArg number(u'n', u"number"_s, u""_s, false, true, &visitor);
    QtArg flag(u'f', u"flag"_s, u""_s, false, false, &visitor);
    parser.addArg(number);
    parser.addArg(flag);
    QCOMPARE(outcomeOf(parser), u"run"_s);
    QCOMPARE(visitor.visits, QStringList({u"number with more"_s, u"flag at end"_s}));
}

void QtArgTest::visitorMayReadFurtherWords() {
    RecordingVisitor visitor;
    QtArgCmdLine parser(wordsOf(u"--pair a b"_s));
    QtArg pair(u'p', u"pair"_s, u""_s, false, true, &visitor);
    parser.addArg(pair);
    QCOMPARE(outcomeOf(parser), u"run"_s);
    QCOMPARE(pair.value().toString(), u"a"_s);
    QCOMPARE(visitor.visits, QStringList({u"pair with more"_s, u"b"_s}));
}

void QtArgTest::visitorComesBeforeTheConstraint() {
    RecordingVisitor visitor;
    OnlyDigits digits;
    QtArgCmdLine parser(wordsOf(u"-n x"_s));
    QtArg number(u'n', u"number"_s, u""_s, false, true, &visitor, &digits);
    parser.addArg(number);
    QVERIFY(outcomeOf(parser).startsWith("Constraint"_L1));
    QCOMPARE(visitor.visits, QStringList{u"number at end"_s});
}

QTEST_GUILESS_MAIN(QtArgTest)
#include "tst_qtarg.moc"
