// SPDX-License-Identifier: GPL-3.0-or-later
#include "measlogid.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class MeaslogIDTest : public QObject {
    Q_OBJECT

private slots:
    void cardTypeIsKnown_data();
    void cardTypeIsKnown();
    void componentsHaveTheirIdentifiers_data();
    void componentsHaveTheirIdentifiers();
    void waveformHasNoName();
};

void MeaslogIDTest::cardTypeIsKnown_data() {
    QTest::addColumn<bool>("isKnown");
    for (const char *const type : {"e1", "da", "otdr", "gbe"})
        QTest::newRow(type) << true;
    for (const char *const type : {"E1", "GBE", "", "jitter", "zr", "sa", "e1 "})
        QTest::newRow(qPrintable(u"not \"%1\""_s.arg(QLatin1StringView(type)))) << false;
}

void MeaslogIDTest::cardTypeIsKnown() {
    const QString tag = QString::fromLatin1(QTest::currentDataTag());
    const QString type = tag.startsWith("not "_L1) ? tag.sliced(5).chopped(1) : tag;
    QTEST(MeaslogID.contains(type), "isKnown");
}

void MeaslogIDTest::componentsHaveTheirIdentifiers_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<MeaslogIDs>("identifiers");
    QTest::newRow("e1: 15 of 16 insertions are different") << u"e1"_s
                                                           << MeaslogIDs{{u"base"_s, u"B"_s},
                                                                         {u"event"_s, u"E"_s},
                                                                         {u"jitter"_s, u"JITTER"_s},
                                                                         {u"jittgen"_s, u"JITGEN"_s},
                                                                         {u"jtf"_s, u"JTF"_s},
                                                                         {u"mtj"_s, u"MTJ"_s},
                                                                         {u"sasiview"_s, u"SASI"_s},
                                                                         {u"casview"_s, u"CAS"_s},
                                                                         {u"tsview"_s, u"TS"_s},
                                                                         {u"frameview"_s, u"FRM"_s},
                                                                         {u"oscill"_s, u"OSCILL"_s},
                                                                         {u"signal"_s, u"SIGNAL"_s},
                                                                         {u"vfsignal"_s, u"VFSIGNAL"_s},
                                                                         {u"indicators"_s, u"I"_s},
                                                                         {u"hdlc"_s, u"HDLC"_s}};
    QTest::newRow("da") << u"da"_s
                        << MeaslogIDs{{u"base"_s, u"B"_s},
                                      {u"event"_s, u"E"_s},
                                      {u"indicators"_s, u"I"_s},
                                      {u"adapter"_s, u"ADAPTER"_s}};
    QTest::newRow("otdr") << u"otdr"_s
                          << MeaslogIDs{
                                 {u""_s, u"WF"_s}, {u"indicators"_s, u"I"_s}, {u"adapter"_s, u"ADAPTER"_s}};
    QTest::newRow("gbe") << u"gbe"_s
                         << MeaslogIDs{{u"rfc2544"_s, u"RFC2544"_s},
                                       {u"indicators"_s, u"I"_s},
                                       {u"adapter"_s, u"ADAPTER"_s}};
}

void MeaslogIDTest::componentsHaveTheirIdentifiers() {
    QFETCH(QString, type);
    QTEST(MeaslogID.value(type), "identifiers");
}

void MeaslogIDTest::waveformHasNoName() {
    QCOMPARE(MeaslogID[u"otdr"_s][QString()], u"WF"_s);
    QVERIFY(!OTDRMeaslogID.contains(u"waveform"_s));
    QVERIFY(!OTDRMeaslogID.contains(u"wf"_s));
}

QTEST_GUILESS_MAIN(MeaslogIDTest)
#include "tst_measlogid.moc"
