// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtargexceptions.h"

#include "outcome.h"
#include "qtarg.h"
#include "qtargcmdline.h"
#include "qtargconstraintiface.h"
#include "qtarghelp.h"
#include "qtargversion.h"
#include "silentprinters.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

class RefusesAll : public QtArgConstraintIface {
public:
    bool accepts(const QVariant &) const override { return false; }
};

void parse(const QString &line, QtArg &option) {
    QtArgCmdLine parser(wordsOf(line));
    parser.addArg(option);
    parser.parse();
}

} // namespace

class QtArgExceptionsTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }

    void messageComesInBothForms_data();
    void messageComesInBothForms();
    void messageOutlivesACopiedException();
    void printedTextsCarryNoMessage();
    void mistakesInTheWordsAreToldApart();
    void mistakesInDefinitionsAreToldApart();
    void printersAreToldApart();
};

void QtArgExceptionsTest::messageComesInBothForms_data() {
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("plain") << u"Unknown argument: -x"_s << "Unknown argument: -x"_ba;
    QTest::newRow("other script") << u"Unknown argument: --ж"_s << "Unknown argument: --ж"_ba;
    QTest::newRow("outside the basic plane") << u"-\U0001F50B"_s << "-\U0001F50B"_ba;
    QTest::newRow("empty") << QString() << ""_ba;
}

void QtArgExceptionsTest::messageComesInBothForms() {
    QFETCH(QString, message);
    QFETCH(QByteArray, bytes);
    const QtArgUnknownArgumentEx exception(message);
    QCOMPARE(exception.qwhat(), message);
    QCOMPARE(QByteArray(exception.what()), bytes);
}

void QtArgExceptionsTest::messageOutlivesACopiedException() {
    auto original = std::make_unique<QtArgUnknownArgumentEx>(u"Unknown argument: -x"_s);
    const QtArgBaseException copy = *original;
    original.reset();
    QCOMPARE(QByteArray(copy.what()), "Unknown argument: -x"_ba);
}

void QtArgExceptionsTest::printedTextsCarryNoMessage() {
    QCOMPARE(QtHelpHasPrintedEx().qwhat(), QString());
    QCOMPARE(QByteArray(QtVersionHasPrintedEx().what()), QByteArray());
}

void QtArgExceptionsTest::mistakesInTheWordsAreToldApart() {
    RefusesAll constraint;
    QtArg file(u'f', u"file"_s, u""_s, true, true, nullptr, &constraint);
    QVERIFY_THROWS_EXCEPTION(QtArgUnknownArgumentEx, parse(u"-x"_s, file));
    QVERIFY_THROWS_EXCEPTION(QtArgUnknownArgumentEx, parse(u"--x"_s, file));
    QVERIFY_THROWS_EXCEPTION(QtArgUnexpectedOptionEx, parse(u"x"_s, file));
    QVERIFY_THROWS_EXCEPTION(QtArgNotDefinedMandatoryArgumentEx, parse(u""_s, file));
    QVERIFY_THROWS_EXCEPTION(QtArgNotDefinedOptionForTheArgumentEx, parse(u"-f"_s, file));
    QVERIFY_THROWS_EXCEPTION(QtArgContraintNotObservedEx, parse(u"-f a"_s, file));
}

void QtArgExceptionsTest::mistakesInDefinitionsAreToldApart() {
    QtArg nothing(QChar(), QString(), u""_s, false, false);
    QVERIFY_THROWS_EXCEPTION(QtArgNotDefinedNorNameNorFlagEx, parse(u""_s, nothing));
    QtArg sign(u'?', QString(), u""_s, false, false);
    QVERIFY_THROWS_EXCEPTION(QtArgDissallowedFlagOrNameEx, parse(u""_s, sign));
    QtArg blank(QChar(), u"a b"_s, u""_s, false, false);
    QVERIFY_THROWS_EXCEPTION(QtArgDissallowedFlagOrNameEx, parse(u""_s, blank));
    QtArg twice(u'a', u"all"_s, u""_s, false, false);
    twice.addName(u"all"_s);
    QVERIFY_THROWS_EXCEPTION(QtArgNameOrFlagAlreadyKnownEx, parse(u""_s, twice));
}

void QtArgExceptionsTest::printersAreToldApart() {
    QtArgCmdLine unused(wordsOf(u""_s));
    QtArgHelp help(&unused);
    QtArgVersion version(&unused, 'v', u"version"_s);
    QVERIFY_THROWS_EXCEPTION(QtArgHelpPrinterHasntDefinedEx, parse(u"-h"_s, help));
    QVERIFY_THROWS_EXCEPTION(QtArgVersionPrinterHasntDefinedEx, parse(u"-v"_s, version));

    SilentHelpPrinter helpPrinter;
    help.setPrinter(&helpPrinter);
    SilentVersionPrinter versionPrinter;
    version.setPrinter(&versionPrinter);
    QVERIFY_THROWS_EXCEPTION(QtHelpHasPrintedEx, parse(u"-h"_s, help));
    QVERIFY_THROWS_EXCEPTION(QtVersionHasPrintedEx, parse(u"-v"_s, version));
}

QTEST_GUILESS_MAIN(QtArgExceptionsTest)
#include "tst_qtargexceptions.moc"
