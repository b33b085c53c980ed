// SPDX-License-Identifier: GPL-3.0-or-later
// What the launcher is compared with must be worth the comparison.
#include <benchmarkhome.h>

#include <QProcess>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// All widgets of a program when its first frame is painted, in the order of the alphabet; line feeds between them.
QByteArray widgetsOf(const QString &program, const QStringList &arguments, QProcessEnvironment environment) {
    environment.insert(u"ZR_BENCH_START_NS"_s, u"0"_s);
    environment.insert(u"ZR_BENCH_WIDGETS"_s, u"1"_s);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.waitForFinished();
    QByteArrayList lines = process.readAllStandardOutput().trimmed().split('\n');
    // Times and sizes.
    lines.removeFirst();
    std::sort(lines.begin(), lines.end());
    return lines.join('\n');
}

} // namespace

class FloorTest : public QObject {
    Q_OBJECT

private slots:
    void hasTheLaunchersWidgets_data();
    void hasTheLaunchersWidgets();
};

void FloorTest::hasTheLaunchersWidgets_data() {
    QTest::addColumn<int>("plugins");
    QTest::newRow("an empty page") << 0;
    QTest::newRow("a full page") << 10;
    QTest::newRow("two pages, the second not full") << 13;
}

void FloorTest::hasTheLaunchersWidgets() {
    QFETCH(int, plugins);
    const BenchmarkHome home(plugins);
    const QByteArray launcher = widgetsOf(QStringLiteral(LAUNCHER), {}, home.environment());
    const QByteArray floor = widgetsOf(QStringLiteral(FLOOR), {QString::number(plugins), home.path()},
                                       home.environment());
    QVERIFY(launcher.count("/QWidget/QStackedWidget/QWidget/QWidget/QPushButton") >= plugins);
    QCOMPARE(floor, launcher);
}

QTEST_GUILESS_MAIN(FloorTest)

#include "tst_floor.moc"
