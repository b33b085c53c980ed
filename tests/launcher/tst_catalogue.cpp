// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QFile>
#include <QLocalSocket>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTranslator>

#include <cerrno>

using namespace Qt::Literals::StringLiterals;

/// The Russian catalogue holds those of Qt's own texts, too, that reach the user.
class CatalogueTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();

    void reasonOfAFileErrorIsRussian_data();
    void reasonOfAFileErrorIsRussian();
    void refusedConnectionIsRussian();
    void missingSocketIsRussian();
    void everyStandardButtonIsRussian();

private:
    QTranslator translator;
};

void CatalogueTest::initTestCase() {
    QVERIFY(translator.load(QStringLiteral(CATALOGUE)));
    QCoreApplication::installTranslator(&translator);
}

void CatalogueTest::reasonOfAFileErrorIsRussian_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("full drive") << ENOSPC << u"на накопителе нет места"_s;
    QTest::newRow("missing file") << ENOENT << u"нет такого файла или папки"_s;
    QTest::newRow("no right") << EACCES << u"доступ запрещён"_s;
    QTest::newRow("many files") << EMFILE << u"открыто слишком много файлов"_s;
}

void CatalogueTest::reasonOfAFileErrorIsRussian() {
    QFETCH(int, number);
    QTEST(qt_error_string(number), "text");
}

void CatalogueTest::refusedConnectionIsRussian() {
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const quint16 port = server.serverPort();
    server.close();
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
    QTRY_VERIFY(socket.error() != QAbstractSocket::UnknownSocketError);
    QCOMPARE(socket.errorString(), u"в соединении отказано"_s);
}

void CatalogueTest::missingSocketIsRussian() {
    QLocalSocket socket;
    socket.connectToServer(u"/nowhere/card"_s);
    QVERIFY2(socket.errorString().endsWith(u": неверное имя"_s), qPrintable(socket.errorString()));
}

void CatalogueTest::everyStandardButtonIsRussian() {
    QMessageBox box;
    int buttons = 0;
    for (int kind = QMessageBox::FirstButton; kind <= QMessageBox::LastButton; kind <<= 1) {
        const QPushButton *const button = box.addButton(QMessageBox::StandardButton(kind));
        QVERIFY2(button && !button->text().contains(QRegularExpression(u"[A-Za-z]"_s)),
                 button ? qPrintable(button->text()) : "no button");
        ++buttons;
    }
    QCOMPARE(buttons, 18);
}

QTEST_MAIN(CatalogueTest)
#include "tst_catalogue.moc"
