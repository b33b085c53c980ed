// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtargdefaultversionprinter.h"

#include "outcome.h"
#include "printed.h"
#include "qtargcmdline.h"
#include "qtargversion.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class QtArgDefaultVersionPrinterTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }

    void textIsFollowedByAnEndOfLine_data();
    void textIsFollowedByAnEndOfLine();
};

void QtArgDefaultVersionPrinterTest::textIsFollowedByAnEndOfLine_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("printed");
    QTest::newRow("one line") << u"The program 1.0"_s << "The program 1.0\n"_ba;
    QTest::newRow("lines that end already")
        << u"The program 1.0\nFree.\n"_s << "The program 1.0\nFree.\n\n"_ba;
    QTest::newRow("other script") << u"Программа"_s << "Программа\n"_ba;
    QTest::newRow("percent signs") << u"%1 %n %s"_s << "%1 %n %s\n"_ba;
    QTest::newRow("nothing") << QString() << "\n"_ba;
}

void QtArgDefaultVersionPrinterTest::textIsFollowedByAnEndOfLine() {
    QFETCH(QString, text);
    QtArgCmdLine parser(wordsOf(u"--vers"_s));
    QtArgDefaultVersionPrinter printer(text);
    QtArgVersion version(&parser, 'v', u"version"_s);
    version.setPrinter(&printer);
    parser.addArg(version);

    QString outcome;
    const QByteArray output = printedBy([&] { outcome = outcomeOf(parser); });
    QCOMPARE(outcome, u"version printed"_s);
    QTEST(output, "printed");
}

QTEST_GUILESS_MAIN(QtArgDefaultVersionPrinterTest)
#include "tst_qtargdefaultversionprinter.moc"
