// SPDX-License-Identifier: GPL-3.0-or-later
#include "updatechannel.h"

#include "fakecard.h"

#include <QSignalSpy>
#include <QTest>

/// The line of the updates by itself.
class UpdateChannelTest : public QObject {
    Q_OBJECT

private slots:
    void updateThatHasComeCountsWhenTheTimeIsOver();
};

void UpdateChannelTest::updateThatHasComeCountsWhenTheTimeIsOver() {
    const QByteArray update = "{\"indicators\":{\"LOS\":1}}\n";
    FakeCard card;
    UpdateChannel channel(card.poller());
    channel.open();
    const QSignalSpy received(&channel, &UpdateChannel::received);
    // The card's end of the line takes a moment to be there.
    QVERIFY(QTest::qWaitFor([&] {
        card.sendUpdate(update);
        return !received.isEmpty();
    }));
    channel.takeWaiting();
    QVERIFY(!channel.waitForUpdate(QDeadlineTimer(0)));
    card.sendUpdate(update);
    QVERIFY(channel.waitForUpdate(QDeadlineTimer(0)));
}

QTEST_GUILESS_MAIN(UpdateChannelTest)
#include "tst_updatechannel.moc"
