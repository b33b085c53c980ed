// SPDX-License-Identifier: GPL-3.0-or-later
#include "definitioncheck.h"
#include "qtarg.h"
#include "qtargexceptions.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class DefinitionCheckTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }

    void mistakeInADefinitionIsTold_data();
    void mistakeInADefinitionIsTold();
    void firstMistakeInOrderIsTold();
    void flagIsCheckedAgainstTheDelimiterInUse();
    void optionIsCheckedAgainstItself();
    void emptyNameIsAName();

private:
    static QString mistakeIn(const QList<QtArgIface *> &options, QChar delimiter = u'-') {
        try {
            checkDefinitions(options, delimiter);
        } catch (const QtArgBaseException &exception) {
            return exception.qwhat();
        }
        return u"none"_s;
    }
};

void DefinitionCheckTest::mistakeInADefinitionIsTold_data() {
    QTest::addColumn<QChar>("flag");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("mistake");
    QTest::newRow("flag and name") << QChar(u'f') << u"file"_s << u"none"_s;
    QTest::newRow("flag only") << QChar(u'f') << QString() << u"none"_s;
    QTest::newRow("name only") << QChar() << u"file"_s << u"none"_s;
    QTest::newRow("digit as flag") << QChar(u'7') << QString() << u"none"_s;
    QTest::newRow("letter of another script") << QChar(u'ж') << QString() << u"none"_s;
    QTest::newRow("neither") << QChar() << QString() << u"Not defined nor name nor flag for argument."_s;
    QTest::newRow("delimiter as flag") << QChar(u'-') << QString() << u"Dissallowed flag: \"-\"."_s;
    QTest::newRow("sign as flag") << QChar(u'?') << QString() << u"Dissallowed flag: \"?\"."_s;
    QTest::newRow("blank as flag") << QChar(u' ') << QString() << u"Dissallowed flag: \" \"."_s;
    QTest::newRow("flag in use") << QChar(u'k') << QString() << u"Flag already in use: k."_s;
    QTest::newRow("name with a blank") << QChar() << u"a b"_s << u"Dissallowed name: \"a b\"."_s;
    QTest::newRow("name with a tab") << QChar() << u"a\tb"_s << u"Dissallowed name: \"a\tb\"."_s;
    QTest::newRow("name with a line feed") << QChar() << u"a\n"_s << u"Dissallowed name: \"a\n\"."_s;
    QTest::newRow("name with a no-break space")
        << QChar() << u"a\u00A0b"_s << u"Dissallowed name: \"a\u00A0b\"."_s;
    QTest::newRow("half a surrogate pair as flag")
        << QChar(u'\xD83D') << QString() << "Dissallowed flag: \""_L1 + QChar(u'\xD83D') + "\"."_L1;
    QTest::newRow("flag in use differs by case") << QChar(u'K') << QString() << u"none"_s;
    QTest::newRow("flag is told before the name")
        << QChar(u'k') << u"known"_s << u"Flag already in use: k."_s;
    QTest::newRow("name begins with one in use") << QChar() << u"known-too"_s << u"none"_s;
    QTest::newRow("name with the delimiter") << QChar() << u"-f"_s << u"none"_s;
    QTest::newRow("name in use") << QChar() << u"known"_s << u"Name already in use: known."_s;
}

void DefinitionCheckTest::mistakeInADefinitionIsTold() {
    QFETCH(QChar, flag);
    QFETCH(QString, name);
    QtArg known(u'k', u"known"_s, u""_s, false, false);
    QtArg option(flag, name, u""_s, false, false);
    QTEST(mistakeIn({&known, &option}), "mistake");
}

void DefinitionCheckTest::firstMistakeInOrderIsTold() {
    QtArg first(u'?', u"a b"_s, u""_s, false, false);
    QtArg second(QChar(), QString(), u""_s, false, false);
    QCOMPARE(mistakeIn({&first, &second}), u"Dissallowed flag: \"?\"."_s);
    QCOMPARE(mistakeIn({&second, &first}), u"Not defined nor name nor flag for argument."_s);
}

void DefinitionCheckTest::flagIsCheckedAgainstTheDelimiterInUse() {
    QtArg option(u'x', QString(), u""_s, false, false);
    QCOMPARE(mistakeIn({&option}, u'x'), u"Dissallowed flag: \"x\"."_s);
}

void DefinitionCheckTest::optionIsCheckedAgainstItself() {
    QtArg flags(u'f', QString(), u""_s, false, false);
    flags.addFlag(u'f');
    QCOMPARE(mistakeIn({&flags}), u"Flag already in use: f."_s);
    QtArg names(QChar(), u"file"_s, u""_s, false, false);
    names.addName(u"file"_s);
    QCOMPARE(mistakeIn({&names}), u"Name already in use: file."_s);
}

void DefinitionCheckTest::emptyNameIsAName() {
    QtArg option(QChar(), QString(), u""_s, false, false);
    option.addName(QString());
    QCOMPARE(mistakeIn({&option}), u"none"_s);
}

QTEST_GUILESS_MAIN(DefinitionCheckTest)
#include "tst_definitioncheck.moc"
