// SPDX-License-Identifier: GPL-3.0-or-later
#include "configfile.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ConfigFileTest : public QObject {
    Q_OBJECT

private slots:
    void tellsWhatIsWrongWithAStore_data();
    void tellsWhatIsWrongWithAStore();
    void settingsReadASoundStoreToItsEnd_data() { tellsWhatIsWrongWithAStore_data(); }
    void settingsReadASoundStoreToItsEnd();
};

void ConfigFileTest::tellsWhatIsWrongWithAStore_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("damage");

    const QString sound;
    QTest::newRow("empty is sound") << ""_ba << sound;
    QTest::newRow("section and values") << "[plugins]\npath=/a/b\nzr=a  b\n"_ba << sound;
    QTest::newRow("value without a section") << "a=1"_ba << sound;
    QTest::newRow("comments and blank lines") << "; it's \"a\n\n  ; x=\"\n# b\n  \n[s]\nk=v\n"_ba << sound;
    QTest::newRow("comment behind a value") << "path=/x ; 5\" panel\n"_ba << sound;
    QTest::newRow("comment right behind a value") << "k=a;b\"c\n"_ba << sound;
    QTest::newRow("UTF-8 byte-order mark") << "\xef\xbb\xbf[s]\nk=v\n"_ba << sound;
    QTest::newRow("carriage returns") << "[s]\r\nk=v\r\n"_ba << sound;
    QTest::newRow("quoted value") << "k=\"a = b; c\"\n"_ba << sound;
    QTest::newRow("escaped quote") << "k=\\\"a\nl=b\n"_ba << sound;
    QTest::newRow("escaped line end") << "k=a\\\nand more\n"_ba << sound;
    QTest::newRow("quoted line end") << "k=\"a\nb\"\n"_ba << sound;
    QTest::newRow("escape before the end") << "k=a\\\n"_ba << sound;

    QTest::newRow("text that is no store")
        << "[s]\nk=v\nhello\n"_ba << u"line 3 is neither a section nor a value"_s;
    QTest::newRow("section without its bracket")
        << "[s\nk=v"_ba << u"line 1 is neither a section nor a value"_s;
    QTest::newRow("binary") << "\x7f"
                               "ELF\x02\x01\n"_ba
                            << u"line 1 is neither a section nor a value"_s;
    QTest::newRow("NUL in a value") << QByteArray("k=a\0b\n", 6) << u"line 1 holds a NUL"_s;
    QTest::newRow("all NULs after a power cut") << QByteArray(4096, '\0') << u"line 1 holds a NUL"_s;
    // A hash sign begins a line that QSettings passes over, but its quotes count.
    QTest::newRow("quote in a hash line")
        << "# 5\" panel\nk=v\n"_ba << u"the quote opened in line 1 never ends"_s;
    QTest::newRow("quote in a key") << "it\"s=1\nk=v\n"_ba << u"the quote opened in line 1 never ends"_s;
    QTest::newRow("cut inside quotes") << "a=1\nk=\"abc"_ba << u"the quote opened in line 2 never ends"_s;
}

void ConfigFileTest::tellsWhatIsWrongWithAStore() {
    QFETCH(QByteArray, text);
    QTEST(damageIn(text), "damage");
}

void ConfigFileTest::settingsReadASoundStoreToItsEnd() {
    QFETCH(QByteArray, text);
    QFETCH(QString, damage);
    if (!damage.isEmpty())
        return;
    const QTemporaryDir directory;
    QFile file(directory.filePath(u"store.conf"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text + "\n[last]\nkey=value\n");
    file.close();
    const QSettings settings(file.fileName(), QSettings::IniFormat);
    QCOMPARE(settings.value(u"last/key"_s).toString(), u"value"_s);
}

QTEST_GUILESS_MAIN(ConfigFileTest)
#include "tst_configfile.moc"
