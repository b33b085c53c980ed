// SPDX-License-Identifier: GPL-3.0-or-later
#include "flashcommand.h"

#include "bussignal.h"
#include "flash/simulateddrive.h"

#include <QCoreApplication>

#include <iostream>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

enum ExitStatus { Done = 0, Failed = 1, Misused = 2 };

constexpr int largestMegabytes = 4096;

int fail(const QString &message) {
    std::cerr << "zr-simulator: " << qPrintable(message) << std::endl;
    return Failed;
}

int misuse() {
    std::cerr << qPrintable(flashCommandHelp());
    return Misused;
}

int announce(const QString &signal, const QVariant &argument) {
    const QString error = sendBusSignal(u"zr.flash"_s, signal, {argument});
    return error.isEmpty() ? Done : fail(error);
}

/// What stands behind "insert NAME".
std::optional<int> driveSize(const QStringList &words) {
    if (words.isEmpty())
        return SimulatedDrive::defaultMegabytes;
    bool isNumber = false;
    const int megabytes = words.value(1).toInt(&isNumber);
    if (words.size() != 2 || words.first() != "--size"_L1 || !isNumber || megabytes < 1 ||
        megabytes > largestMegabytes)
        return std::nullopt;
    return megabytes;
}

int insertDrive(const QString &name, const QStringList &options) {
    const std::optional<int> megabytes = driveSize(options);
    if (!megabytes || !SimulatedDrive::isPossibleName(name))
        return misuse();
    if (!SimulatedDrive::inserted().isEmpty())
        return fail(u"%1 is inserted already"_s.arg(SimulatedDrive::inserted()));
    SimulatedDrive drive(name);
    const QString error = drive.insert(*megabytes);
    if (!error.isEmpty())
        return fail(error);
    const QString kind = drive.fileSystem().isEmpty() ? u"a directory of no limited size"_s
                                                      : drive.fileSystem() + " file system"_L1;
    std::cout << qPrintable(name) << ": " << qPrintable(kind) << " at " << qPrintable(drive.mountDirectory())
              << std::endl;
    return announce(u"inserted"_s, name);
}

int removeDrive() {
    const QString name = SimulatedDrive::inserted();
    if (name.isEmpty())
        return fail(u"no drive is inserted"_s);
    const QString error = SimulatedDrive(name).remove();
    return !error.isEmpty() ? fail(error) : announce(u"removed"_s, name);
}

int failMount(const QString &code) {
    bool isNumber = false;
    const int exitCode = code.toInt(&isNumber);
    return isNumber ? announce(u"mountFailed"_s, exitCode) : misuse();
}

} // namespace

QString flashCommandHelp() {
    return uR"(zr-simulator flash: a USB flash drive. What is on it stays there while it is out.

  insert NAME [--size MB]    a drive whose only partition has that name, for instance sda1; MB counts for a new one
  remove                     pulls it, whoever writes to it
  mount-failed CODE          a drive that mount(8) refused with that exit code
)"_s;
}

int runFlashCommand(const QStringList &words, int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    const QString verb = words.value(0);
    // This machine's own drives are none of ours.
    if (qEnvironmentVariableIsEmpty("ZR_SYSROOT") && (verb == "insert"_L1 || verb == "remove"_L1))
        return fail(u"ZR_SYSROOT names no simulated instrument"_s);
    if (verb == "insert"_L1 && words.size() >= 2)
        return insertDrive(words.at(1), words.mid(2));
    if (verb == "remove"_L1 && words.size() == 1)
        return removeDrive();
    if (verb == "mount-failed"_L1 && words.size() == 2)
        return failMount(words.at(1));
    return misuse();
}
