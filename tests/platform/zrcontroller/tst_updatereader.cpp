// SPDX-License-Identifier: GPL-3.0-or-later
#include "updatereader.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class UpdateReaderTest : public QObject {
    Q_OBJECT

private slots:
    void lineIsAnObjectOfObjects_data();
    void lineIsAnObjectOfObjects();
    void valuesAreKept();
    void linesAreCutFromBytesAsTheyArrive();
    void damagedLinesDoNotHideTheOthers();
    void lineWithoutEndIsDropped();
};

void UpdateReaderTest::lineIsAnObjectOfObjects_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("isUpdate");
    QTest::newRow("one stream") << QByteArray(R"({"indicators":{"LOS":"none"}})") << true;
    QTest::newRow("two streams") << QByteArray(R"({"indicators":{},"events":{"n":1}})") << true;
    QTest::newRow("no stream") << QByteArray("{}") << true;
    QTest::newRow("blanks around") << QByteArray(" { } ") << true;
    QTest::newRow("array") << QByteArray("[]") << false;
    QTest::newRow("stream that is no object") << QByteArray(R"({"indicators":1})") << false;
    QTest::newRow("text") << QByteArray("hello") << false;
    QTest::newRow("cut off") << QByteArray(R"({"indicators":{"LOS")") << false;
    QTest::newRow("two objects") << QByteArray("{}{}") << false;
    QTest::newRow("NUL") << QByteArray("{\0}", 3) << false;
    QTest::newRow("bytes that are no UTF-8") << QByteArray("{\"\xff\":{}}") << false;
    QTest::newRow("a thousand levels deep") << QByteArray(R"({"a":)").repeated(2000) << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void UpdateReaderTest::lineIsAnObjectOfObjects() {
    QFETCH(QByteArray, line);
    QTEST(cardUpdate(line).has_value(), "isUpdate");
}

void UpdateReaderTest::valuesAreKept() {
    const std::optional<CardUpdate> update =
        cardUpdate(R"({"indicators":{"b":"present","a":"none"},"counts":{"errors":3}})");
    QVERIFY(update);
    QCOMPARE(update->keys(), QStringList({u"counts"_s, u"indicators"_s}));
    const QVariantMap indicators = update->value(u"indicators"_s);
    QCOMPARE(indicators.keys(), QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(indicators.value(u"b"_s).toString(), u"present"_s);
    QCOMPARE(update->value(u"counts"_s).value(u"errors"_s).toString(), u"3"_s);
}

void UpdateReaderTest::linesAreCutFromBytesAsTheyArrive() {
    UpdateReader reader;
    qsizetype updates = 0;
    for (const char byte : QByteArray("{\"a\":{}}\r\n\n{\"b\":{}}\n{\"c\""))
        updates += reader.feed(QByteArrayView(&byte, 1)).updates.size();
    QCOMPARE(updates, 2);
    QCOMPARE(reader.feed(":{}}\n").updates.size(), 1);
}

void UpdateReaderTest::damagedLinesDoNotHideTheOthers() {
    const UpdateReader::Batch batch = UpdateReader().feed("?\n{\"a\":{}}\n\xff\xff\n{\"b\":{}}\n");
    QCOMPARE(batch.updates.size(), 2);
    QCOMPARE(batch.damagedLines, 2);
}

void UpdateReaderTest::lineWithoutEndIsDropped() {
    UpdateReader reader;
    const QByteArray part(64 * 1024, 'x');
    for (int i = 0; i < 16; ++i)
        QCOMPARE(reader.feed(part).damagedLines, 0);
    QCOMPARE(reader.feed("\n").damagedLines, 1);
    QCOMPARE(reader.feed("{\"a\":{}}\n").updates.size(), 1);
}

QTEST_GUILESS_MAIN(UpdateReaderTest)
#include "tst_updatereader.moc"
