// SPDX-License-Identifier: GPL-3.0-or-later
#include "flashservice.h"
#include "terminationsignal.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <iostream>
#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

enum ExitStatus { Done = 0, Failed = 1, Misused = 2 };

/// A broken drive can hold mount(8) up for minutes.
constexpr std::chrono::milliseconds mountLimit = 20s;

/// The limit that the command line wants, or nothing when the line is wrong.
std::optional<std::chrono::milliseconds> wantedMountLimit(const QStringList &words) {
    QCommandLineParser parser;
    parser.addOption({u"mount-limit"_s, {}, u"MS"_s, QString::number(mountLimit.count())});
    if (!parser.parse(words) || !parser.positionalArguments().isEmpty())
        return std::nullopt;
    const int limit = parser.value(u"mount-limit"_s).toInt();
    if (limit <= 0)
        return std::nullopt;
    return std::chrono::milliseconds(limit);
}

int fail(const char *reason) {
    std::cerr << "zr-flash-service: " << reason << std::endl;
    return Failed;
}

} // namespace

/// Ends the program when a bus goes; it is started anew by whoever looks after it.
class BusLoss : public QObject {
    Q_OBJECT

public:
    void watch(QDBusConnection bus) {
        bus.connect(QString(), u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s,
                    u"Disconnected"_s, this, SLOT(end()));
    }

private slots:
    void end() { QCoreApplication::exit(fail("a bus has gone")); }
};

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    const auto limit = wantedMountLimit(QCoreApplication::arguments());
    if (!limit) {
        std::cerr
            << "zr-flash-service [--mount-limit MS]: mounts flash drives and announces them.\n"
               "  --mount-limit MS  how long a mount may take, instead of 20000 milliseconds; for tests\n";
        return Misused;
    }
    const QDBusConnection systemBus = QDBusConnection::systemBus();
    if (!systemBus.isConnected())
        return fail("no connection to the system bus");
    if (!QDBusConnection::sessionBus().isConnected())
        return fail("no connection to the session bus");

    BusLoss busLoss;
    busLoss.watch(systemBus);
    busLoss.watch(QDBusConnection::sessionBus());
    // Mounted drives stay as they are: the next run of this program takes them over.
    const TerminationSignal termination;
    QObject::connect(&termination, &TerminationSignal::arrived, &application, &QCoreApplication::quit);
    const FlashService service(systemBus, *limit);
    return QCoreApplication::exec();
}

#include "main.moc"
