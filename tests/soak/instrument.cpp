// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument.h"

#include "filesbelow.h"

#include <palettefactory.h>

#include <QDateTime>
#include <QDir>
#include <QTest>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestWaitMs = 20'000;
/// Bytes of what the launcher wrote.
constexpr qsizetype longestQuote = 500;

/// Enough that a slow copy can be interrupted. It is older than every report.
constexpr int traceBytes = 100'000;
constexpr int traces = 3;

const QByteArray fastRsync = "exec /usr/bin/rsync \"$@\"";
const QByteArray slowRsync = "exec /usr/bin/rsync --bwlimit=50 \"$@\"";

const QString simulator = QStringLiteral(E2E_TREE "/bin/zr-simulator");

QString root() {
    return qEnvironmentVariable("ZR_SYSROOT");
}

QString brightnessFile() {
    return root() + "/sys/devices/platform/pmmcu.0/brightness"_L1;
}

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Forgets all that was ever copied to one: what is on a drive already would not be copied again.
void emptyDrives() {
    QDir(root() + "/var/lib/simulated-flash"_L1).removeRecursively();
}

QString reportsDirectory() {
    return QDir::homePath() + "/reports"_L1;
}

/// Names and sizes.
QString listOf(const FilesBelow &files) {
    QStringList texts;
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        texts.append(u"%1 (%2)"_s.arg(QString::fromUtf8(file.key())).arg(file.value().size()));
    return texts.join(u", "_s);
}

void writeTraces() {
    QDir().mkpath(reportsDirectory());
    for (int i = 0; i < traces; ++i) {
        QFile file(reportsDirectory() + u"/trace-%1.sor"_s.arg(i));
        if (!file.open(QIODevice::WriteOnly))
            continue;
        file.write(QByteArray(traceBytes, static_cast<char>(i)));
        file.flush();
        file.setFileTime(QDateTime(QDate(2020, 1, 1), QTime()), QFileDevice::FileModificationTime);
    }
}

} // namespace

Instrument::Instrument() {
    for (const QString &directory : {u"/var/run/tester"_s, u"/proc"_s, u"/sys/devices/platform/pmmcu.0"_s})
        QDir().mkpath(root() + directory);
    QFile brightness(brightnessFile());
    static_cast<void>(brightness.open(QIODevice::WriteOnly));
    programs.put(u"rsync"_s, fastRsync);
    writeTraces();
    configure();
}

Instrument::~Instrument() {
    QProcess list;
    list.start(simulator, {u"card"_s, u"list"_s});
    list.waitForFinished();
    for (const QString &name :
         QString::fromUtf8(list.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts))
        simulate({u"card"_s, u"remove"_s, name});
}

void Instrument::configure() {
    const QString plugins = QStringLiteral(E2E_TREE "/" E2E_LIBRARY_DIR "/zr-launcher/plugins/");
    config.set(u"paths/main"_s, u"reports"_s);
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.setCollection(u"zr"_s, u"probe system network reports sound night refresh"_s);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
    config.addPlugin(u"system"_s, {.file = plugins + "libsystem.so"_L1, .settings = u"refresh"_s});
    config.addPlugin(u"reports"_s, {.version = 1, .column = 2, .file = plugins + "libreports.so"_L1});
    config.addPlugin(u"network"_s, {.row = 2, .file = plugins + "libnetwork.so"_L1});
    config.addPlugin(u"sound"_s, {.row = 2, .column = 2, .file = plugins + "libsound.so"_L1});
    config.addPlugin(u"night"_s, {.row = 3, .column = 2, .file = plugins + "libnight.so"_L1});
    config.addPlugin(u"refresh"_s, {.file = plugins + "librefresh.so"_L1});
}

QString Instrument::switchOn() {
    process.environment.insert(u"DISPLAY"_s, display.display());
    if (!process.start({u"-platform"_s, u"xcb"_s}))
        return u"does not start: "_s + QString::fromUtf8(process.errors());
    failure.clear();
    comes(u"keyboard"_s, [this] { return process.isActive(); });
    return failure;
}

QString Instrument::perform(const Action &action) {
    failure.clear();
    if (!(carryOut(action) && pagesAreShown()) && failure.isEmpty())
        failure = u"cannot be done"_s;
    if (!failure.isEmpty())
        failure += "; the launcher said last: "_L1 + QString::fromUtf8(process.errors().right(longestQuote));
    return failure;
}

QString Instrument::differenceFrom(int reports) {
    if (!process.message().isEmpty())
        return "message: "_L1 + process.message();
    if (countReports() != reports)
        return u"%1 reports instead of %2"_s.arg(countReports()).arg(reports);
    if (const QStringList keys = process.keysHeard(); !keys.isEmpty())
        return "keys that windows should not hear of: "_L1 + keys.join(u' ');
    return {};
}

bool Instrument::carryOut(const Action &action) {
    const QString word = action.words.value(0);
    switch (action.kind) {
    case Action::InsertCard:
        pages.insert(action.words);
        return simulate(QStringList{u"card"_s, u"insert"_s} + action.words);
    case Action::RemoveCard:
        pages.remove(word);
        return simulate({u"card"_s, u"remove"_s, word});
    case Action::RaiseAlarm:
        return alarm(word, action.words.at(1), true);
    case Action::EndAlarm:
        return alarm(word, action.words.at(1), false);
    case Action::ForgetAlarms:
        return forgetAlarms();
    case Action::ShowPage:
        return showPage(word.toInt());
    case Action::OpenWindow:
        return openWindow(word);
    case Action::OpenSettings:
        return openSettings();
    case Action::OpenPopup:
        return openPopup(word);
    case Action::ChangeColours:
        return changeColours();
    case Action::PressKey:
        return useKey(word);
    case Action::AskForPower:
        return askForPower();
    case Action::SetCharge:
        return setCharge(action.words);
    case Action::RefuseExport:
        return insertDrive(word) && press(u"Нет"_s) && messageGoes() && removeDrive();
    case Action::Export:
        return exportTo(word);
    case Action::PullAskedDrive:
        return pullAskedDrive(word);
    case Action::PullDrive:
        return pullDrive(word);
    case Action::FailMount:
        return simulate({u"flash"_s, u"mount-failed"_s, word}) && messageComes(word) && readMessage();
    case Action::SaveReport:
        return saveReport();
    case Action::ReadReport:
        return readReport(word.toInt());
    case Action::DeleteReport:
        return deleteReport();
    }
    return false;
}

bool Instrument::simulate(const QStringList &words) {
    QProcess program;
    program.start(simulator, words);
    program.waitForFinished();
    const bool done = program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0;
    if (!done)
        failure = words.join(u' ') + ": "_L1 + QString::fromUtf8(program.readAllStandardError());
    return done;
}

bool Instrument::press(const QString &nameOrText) {
    const bool pressed = process.press(nameOrText);
    if (!pressed)
        failure = nameOrText + " is not there to be pressed"_L1;
    return pressed;
}

bool Instrument::pressRow(int row) {
    const bool pressed = process.pressRow(row);
    if (!pressed)
        failure = u"no row %1"_s.arg(row);
    return pressed;
}

bool Instrument::pressKey(const QString &key) {
    const bool pressed = display.key({key});
    if (!pressed)
        failure = u"key %1"_s.arg(key);
    return pressed;
}

bool Instrument::comes(const QString &what, const std::function<bool()> &condition) {
    const bool came = QTest::qWaitFor(condition, longestWaitMs);
    if (!came)
        failure = u"in vain waited for: %1; page %2, message \"%3\""_s.arg(what, process.shownPage(),
                                                                           process.message());
    return came;
}

bool Instrument::messageComes(const QString &part) {
    return comes(part, [&] { return process.message().contains(part); });
}

bool Instrument::messageGoes() {
    return comes(u"end of the message"_s, [this] { return process.message().isEmpty(); });
}

bool Instrument::popupComes() {
    return comes(u"pop-up"_s, [this] { return !process.shownPopup().isEmpty(); });
}

bool Instrument::popupGoes() {
    return comes(u"end of the pop-up"_s, [this] { return process.shownPopup().isEmpty(); });
}

bool Instrument::pagesAreShown() {
    if (!comes(u"%1 pages"_s.arg(pages.count()), [this] { return process.selectorCount() == pages.count(); }))
        return false;
    // Which page follows a card that is taken away is the launcher's choice.
    if (pages.shown() < 0)
        pages.show(qMax(0, process.checkedSelector()));
    return comes(u"page %1"_s.arg(pages.shown()),
                 [this] { return process.checkedSelector() == pages.shown(); }) &&
           comes(pages.lamps().join(u' '), [this] { return process.leds() == pages.lamps(); });
}

/// Of a card whose page is not shown nothing is to be seen before it is.
bool Instrument::alarm(const QString &card, const QString &name, bool isPresent) {
    pages.setAlarm(card, name, isPresent);
    return simulate({u"card"_s, u"alarm"_s, card, name, isPresent ? u"present"_s : u"none"_s});
}

bool Instrument::forgetAlarms() {
    // There should be something to forget.
    const int page = pages.pageWithPastAlarm();
    if (page >= 0 && !showPage(page))
        return false;
    pages.forgetAlarms();
    return press(u"ledPanel"_s);
}

bool Instrument::showPage(int index) {
    process.goHome();
    const QString text = process.selectorTexts().value(index);
    pages.show(index);
    if (!process.pressSelector(index))
        failure = u"no page %1"_s.arg(index);
    return failure.isEmpty() && comes(text, [&] { return process.caption() == text; }) && pagesAreShown();
}

bool Instrument::openWindow(const QString &icon) {
    return showPage(0) && press(icon) &&
           comes(icon, [this] { return process.shownPage() != "pageLauncher"_L1; });
}

bool Instrument::openSettings() {
    return openWindow(u"Система"_s) && press(u"labelSettings"_s) &&
           comes(u"settings"_s, [this] { return process.shownPage() == "RefreshWindow"_L1; });
}

bool Instrument::openPopup(const QString &opener) {
    if (!showPage(0) || !press(opener) || !popupComes())
        return false;
    process.closePopup();
    return popupGoes();
}

bool Instrument::changeColours() {
    isNight = !isNight;
    PaletteFactory::setSet(isNight ? PaletteFactory::Night : PaletteFactory::Day);
    const QString ground = PaletteFactory::getPalette(u"GenericWindow"_s).color(QPalette::Window).name();
    return showPage(0) && press(u"Ночные цвета"_s) && comes("ground "_L1 + ground, [&] {
               return process.ground() == ground && process.isScreenUpToDate();
           });
}

bool Instrument::chargeIsShown() {
    return comes("charge "_L1 + charge.join(u' '), [this] {
        const QStringList texts = process.paintedTexts(u"StatusLabel"_s);
        return texts.contains(charge.at(0) + u'%') &&
               texts.contains(u"Заряжается"_s) == (charge.at(1) == "charging"_L1);
    });
}

bool Instrument::setCharge(const QStringList &words) {
    if (!charge.isEmpty() && !chargeIsShown())
        return false;
    charge = words;
    return simulate(QStringList{u"battery"_s, u"set"_s} + words);
}

bool Instrument::useKey(const QString &key) {
    if (key == "Home"_L1)
        return goHome();
    if (key == "F3"_L1)
        return changeBrightness();
    if (key == "F4"_L1)
        return toggleInformation();
    return letGo(key, key == "F1"_L1 ? Qt::Key_F1 : Qt::Key_F2);
}

bool Instrument::goHome() {
    // There has to be something to leave.
    return (process.shownPage() != "pageLauncher"_L1 || openWindow(u"Система"_s)) && pressKey(u"Home"_s) &&
           comes(u"page behind the window"_s, [this] { return process.shownPage() == "pageLauncher"_L1; });
}

bool Instrument::changeBrightness() {
    isBright = !isBright;
    const QByteArray level = isBright ? "255" : "1";
    return pressKey(u"F3"_s) && comes("brightness "_L1 + QString::fromLatin1(level),
                                      [&] { return contentOf(brightnessFile()) == level; });
}

bool Instrument::letGo(const QString &key, Qt::Key number) {
    QStringList heard;
    return pressKey(key) && comes(key, [&] {
               heard += process.keysHeard();
               return heard == QStringList(QString::number(-number));
           });
}

/// Pages of cards have nothing to tell here.
bool Instrument::toggleInformation() {
    return showPage(0) && pressKey(u"F4"_s) && popupComes() && pressKey(u"F4"_s) && popupGoes();
}

bool Instrument::askForPower() {
    return pressKey(u"Pause"_s) && messageComes(u"выключить"_s) && press(u"Нет"_s) && messageGoes();
}

bool Instrument::insertDrive(const QString &partition) {
    return simulate({u"flash"_s, u"insert"_s, partition}) && messageComes(u"reports"_s);
}

bool Instrument::removeDrive() {
    return simulate({u"flash"_s, u"remove"_s});
}

bool Instrument::exportTo(const QString &partition) {
    removalIsTold = true;
    emptyDrives();
    if (!insertDrive(partition) || !press(u"Да"_s) || !messageGoes())
        return false;
    const FilesBelow exported = readFiles(reportsDirectory());
    const FilesBelow copies = readFiles(root() + u"/media/%1/reports"_s.arg(partition));
    if (copies != exported)
        failure = u"copied %1; to be exported %2"_s.arg(listOf(copies), listOf(exported));
    return failure.isEmpty() && removeDrive();
}

bool Instrument::pullAskedDrive(const QString &partition) {
    if (!insertDrive(partition) || !removeDrive())
        return false;
    if (std::exchange(removalIsTold, false) && (!messageComes(u"USB"_s) || !readMessage()))
        return false;
    return messageGoes();
}

bool Instrument::pullDrive(const QString &partition) {
    removalIsTold = false;
    emptyDrives();
    programs.put(u"rsync"_s, slowRsync);
    const bool told = insertDrive(partition) && press(u"Да"_s) &&
                      comes(u"copy"_s, [this] { return process.progress() > 0; }) && removeDrive() &&
                      messageComes(u"USB"_s) && readMessage();
    programs.put(u"rsync"_s, fastRsync);
    return told;
}

bool Instrument::readMessage() {
    return press(u"ОК"_s) && messageGoes();
}

bool Instrument::saveReport() {
    const int before = countReports();
    return openWindow(u"Система"_s) && press(u"labelReport"_s) && press(u"Сохранить"_s) &&
           comes(u"report"_s, [&] { return countReports() == before + 1; });
}

bool Instrument::openReports() {
    if (!openWindow(u"Отчёты"_s))
        return false;
    // A card that came while a report was read has left it open.
    const auto isListShown = [this] { return process.isVisible(u"Удалить"_s); };
    return isListShown() || (press(process.backButtonText()) && comes(u"list of reports"_s, isListShown));
}

bool Instrument::readReport(int row) {
    return openReports() && pressRow(row) && press(u"Открыть"_s) &&
           comes(u"report"_s, [this] { return process.backButtonText() == u"◄ Отчёты"_s; });
}

bool Instrument::deleteReport() {
    const int before = countReports();
    return openReports() && pressRow(0) && press(u"Удалить"_s) && press(u"Да"_s) &&
           comes(u"end of the report"_s, [&] { return countReports() == before - 1; });
}

int Instrument::countReports() const {
    return static_cast<int>(QDir(reportsDirectory()).entryList({u"system-*.txt"_s}, QDir::Files).size());
}
