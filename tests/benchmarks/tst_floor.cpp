// SPDX-License-Identifier: GPL-3.0-or-later
// What the launcher is compared with must be worth the comparison.
#include <benchmarkhome.h>

#include <QProcess>
#include <QTest>

#include <algorithm>
#include <iterator>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

/// All that a program consists of when its first frame is painted, a line each, in the order of the alphabet.
struct Contents {
    QByteArrayList widgets;
    QByteArrayList libraries;
};

/// Nothing when the program does not end as it has to.
std::optional<Contents> contentsOf(const QString &program, const QStringList &arguments,
                                   QProcessEnvironment environment) {
    environment.insert(u"ZR_BENCH_START_NS"_s, u"0"_s);
    environment.insert(u"ZR_BENCH_CONTENTS"_s, u"1"_s);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        qWarning("%s: %s, %s", qPrintable(program), qPrintable(process.errorString()),
                 process.readAllStandardError().constData());
        return std::nullopt;
    }
    QByteArrayList lines = process.readAllStandardOutput().trimmed().split('\n');
    // Times and sizes.
    lines.removeFirst();
    std::sort(lines.begin(), lines.end());
    Contents contents;
    for (const QByteArray &line : lines)
        (line.startsWith("opened ") ? contents.libraries : contents.widgets).append(line);
    return contents;
}

/// What only one of both holds.
QByteArray difference(const QByteArrayList &one, const QByteArrayList &other) {
    QByteArrayList lines;
    std::set_symmetric_difference(one.cbegin(), one.cend(), other.cbegin(), other.cend(),
                                  std::back_inserter(lines));
    return lines.join('\n');
}

} // namespace

class FloorTest : public QObject {
    Q_OBJECT

private slots:
    void isMadeOfTheSame_data();
    void isMadeOfTheSame();
};

void FloorTest::isMadeOfTheSame_data() {
    QTest::addColumn<int>("plugins");
    QTest::newRow("an empty page") << 0;
    QTest::newRow("a full page") << 10;
    QTest::newRow("two pages, the second not full") << 13;
    QTest::newRow("seven pages") << 70;
}

void FloorTest::isMadeOfTheSame() {
    QFETCH(int, plugins);
    const BenchmarkHome home(plugins);
    const std::optional<Contents> launcher = contentsOf(QStringLiteral(LAUNCHER), {}, home.environment());
    QVERIFY(launcher);
    const std::optional<Contents> floor =
        contentsOf(QStringLiteral(FLOOR), {QString::number(plugins), home.path()}, home.environment());
    QVERIFY(floor);

    constexpr int widgetsWithoutIcons = 40;
    constexpr int librariesWithoutPlugins = 40;
    QVERIFY(launcher->widgets.size() >= widgetsWithoutIcons + plugins);
    QCOMPARE(floor->widgets.join('\n'), launcher->widgets.join('\n'));
    QVERIFY(launcher->libraries.size() >= librariesWithoutPlugins + plugins);
    QVERIFY2(
        floor->libraries.size() == launcher->libraries.size(),
        ("Opened by only one of them:\n" + difference(floor->libraries, launcher->libraries)).constData());
}

QTEST_GUILESS_MAIN(FloorTest)

#include "tst_floor.moc"
