// SPDX-License-Identifier: GPL-3.0-or-later
#include "holdings.h"
#include "insertedcards.h"
#include "testconfig.h"

#include <styleoverride.h>

#include <QApplication>

#include <map>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rounds = 5000;
constexpr int warmUpRounds = 100;
constexpr qint64 mostGrowthBytes = 2 * 1024 * 1024;

} // namespace

/// Thousands of cards of all types come and go; nothing of them is left.
class CardSoakTest : public QObject {
    Q_OBJECT

private slots:
    void fiveThousandCardsLeaveNothingBehind();

private:
    void insertAndRemove(int round);

    std::unique_ptr<LauncherWindow> window;
    std::map<QString, FakeCard> cards;
};

void CardSoakTest::insertAndRemove(int round) {
    static const QStringList types{u"e1"_s, u"gbe"_s, u"da"_s, u"otdr"_s};
    const QString type = types[round % types.size()];
    FakeCard &card = cards[type];
    insert(*window, type, round, card);
    card.sendUpdate("{\"indicators\":{\"LOS\":\"present\"}}\n");
    QCoreApplication::processEvents();
    remove(*window, type, round);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    card.forgetCommands();
}

void CardSoakTest::fiveThousandCardsLeaveNothingBehind() {
    // As the launcher dresses itself: the plain style keeps a picture of every button it ever drew.
    QApplication::setStyle(new StyleOverride(QApplication::style()));
    TestConfig config;
    config.setPersistent(u"zr da"_s);
    window = std::make_unique<LauncherWindow>();
    window->resize(800, 480);
    window->show();
    for (const QString &type : {u"e1"_s, u"gbe"_s, u"da"_s, u"otdr"_s}) {
        cards[type].setReply("options", type == "e1"_L1 ? "ZR-SIG1" : "");
        cards[type].setReply("status alarms", "LOS\nAIS");
    }
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    for (int round = 0; round < warmUpRounds; ++round)
        insertAndRemove(round);
    const Holdings before = holdingsOf(*window);
    for (int round = warmUpRounds; round < rounds; ++round)
        insertAndRemove(round);
    const Holdings after = holdingsOf(*window);
    qInstallMessageHandler(nullptr);

    QVERIFY(cardsOf(*window).isEmpty());
    const QString difference = differenceBetween(before, after, mostGrowthBytes);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

QTEST_MAIN(CardSoakTest)
#include "tst_cardsoak.moc"
