// SPDX-License-Identifier: GPL-3.0-or-later
#include "buildinfo.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class BuildInfoTest : public QObject {
    Q_OBJECT

private slots:
    void nameTellsProductLineAndVersion();
    void bannerTellsBuilderTimeAndRevision();
    void noticeHasFiveLines();
};

void BuildInfoTest::nameTellsProductLineAndVersion() {
    QCOMPARE(QByteArray(build_name), "GUI launcher 0.0.12-0"_ba);
}

void BuildInfoTest::bannerTellsBuilderTimeAndRevision() {
    const QRegularExpression form(QRegularExpression::anchoredPattern(
        u"made by \\S+, on [A-Z][a-z]{2} [ \\d]\\d \\d{4}, \\d\\d:\\d\\d:\\d\\d from revision: \\d+m?"_s));
    QVERIFY2(form.match(QString::fromUtf8(build_info)).hasMatch(), build_info);
}

void BuildInfoTest::noticeHasFiveLines() {
    const QByteArray notice(build_copyright);
    QVERIFY(notice.endsWith('\n'));
    const QByteArrayList lines = notice.chopped(1).split('\n');
    QCOMPARE(lines.size(), 5);
    QVERIFY(lines[0].contains("2009"));
    QCOMPARE(lines[1], "License GPLv3+: GNU GPL version 3 or later"_ba);
    QVERIFY(lines[2].startsWith("<http") && lines[2].endsWith('>'));
    QCOMPARE(lines[3], "This is free software: you are free to change and redistribute it."_ba);
    QCOMPARE(lines[4], "There is NO WARRANTY, to the extent permitted by law."_ba);
}

QTEST_GUILESS_MAIN(BuildInfoTest)
#include "tst_buildinfo.moc"
