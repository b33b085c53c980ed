// SPDX-License-Identifier: GPL-3.0-or-later
//
// Takes pictures of the plug-ins' windows, to be looked at:
//   plugin-gallery OUTDIR [WIDTHxHEIGHT [long]]
// The size is that of a window, 720x420 unless given. With "long" figures are Russian, and every text is half as
// long again, as a translation may be. Run it with a home directory of its own; it fills that
// with reports.
#include "factrow.h"
#include "networkreader.h"
#include "networkwindow.h"
#include "noticewindow.h"
#include "refreshwindow.h"
#include "reportlistpage.h"
#include "reportsdirectory.h"
#include "reportswindow.h"
#include "systemkeeper.h"
#include "systemreader.h"
#include "systemstatus.h"
#include "systemwindow.h"

#include <datatable.h>
#include <palettefactory.h>
#include <styleoverride.h>

#include <QApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLinearGradient>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QTranslator>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize usualSize(720, 420);

class Gallery {
public:
    Gallery(const QString &directory, const QSize &size) : outputDirectory(directory), windowSize(size) {}

    void show(QWidget *window) const {
        window->setAutoFillBackground(true);
        window->resize(windowSize);
        window->show();
        settle();
    }

    void take(QWidget *window, const QString &name) const {
        settle();
        window->grab().save(u"%1/%2-%3.png"_s.arg(outputDirectory, name).arg(windowSize.height()));
    }

private:
    /// Lets the window paint, and two readings go by.
    static void settle() {
        QEventLoop loop;
        QTimer::singleShot(1200, &loop, &QEventLoop::quit);
        loop.exec();
    }

    QString outputDirectory;
    QSize windowSize;
};

/// Stands in for a language that takes more room than English.
class LongTexts : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override {
        const QString text = QString::fromUtf8(source);
        const qsizetype more = text.contains(u'%') ? 4 : (text.size() + 1) / 2;
        return text + QString(more, u'\u0436');
    }
};

void writeFile(const QString &name, const QByteArray &bytes) {
    QFile file(reportsDirectory() + u'/' + name);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

void drawTrace(const QString &name) {
    QImage picture(1200, 800, QImage::Format_RGB32);
    QLinearGradient sky(0, 0, 0, picture.height());
    sky.setColorAt(0, Qt::white);
    sky.setColorAt(1, QColor(0xC6, 0xC3, 0xEA));
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), sky);
    painter.setPen(QPen(QColor(0x3D, 0x57, 0xD6), 6));
    for (int x = 0; x < picture.width(); x += 40)
        painter.drawLine(x, 300 + x / 3, x + 40, 300 + (x + 40) / 3 + (x % 80 ? 30 : 0));
    picture.save(reportsDirectory() + u'/' + name);
}

void fillReports() {
    QDir().mkpath(reportsDirectory());
    writeFile(u"alarms-20261120-101500.txt"_s,
              "Alarm          State          Since\nLOF            present        14:31:07\n");
    writeFile(u"raw-samples-of-the-long-measurement-on-the-northern-line.bin"_s,
              QByteArray("\0\1\2\3samples", 11).repeated(2000));
    writeFile(u"two\nlines.txt"_s, "one\n");
    for (int number = 1; number <= 6; ++number)
        writeFile(u"jitter-2026112%1-093000.txt"_s.arg(number), QByteArray(400 * number, 'j'));
    drawTrace(u"trace-line-4.png"_s);
}

void takeSystem(const Gallery &gallery) {
    const auto reader = std::make_shared<SystemReader>(SystemSources{u"/proc"_s, u"/"_s, u"/dev/shm"_s},
                                                       u"GUI launcher 0.0.12-0"_s);
    SystemWindow window(reader);
    SystemKeeper keeper(reader);
    QObject::connect(&keeper, &SystemKeeper::saved, &window, &SystemWindow::tellSuccess);
    QObject::connect(&keeper, &SystemKeeper::failed, &window, &SystemWindow::tellFailure);
    gallery.show(&window);
    gallery.take(&window, u"system"_s);
    keeper.save();
    gallery.take(&window, u"system-saved"_s);
    window.findChildren<FactRow *>().at(5)->click();
    gallery.take(&window, u"system-storage"_s);

    SystemStatus status(reader);
    status.setAutoFillBackground(true);
    status.resize(376, status.sizeHint().height());
    status.show();
    gallery.take(&status, u"system-status"_s);
}

void takeNetwork(const Gallery &gallery, const QString &directory) {
    NetworkWindow window(std::make_unique<NetworkReader>(directory));
    gallery.show(&window);
    gallery.take(&window, u"network"_s);
}

void takeEmptyReports(const Gallery &gallery) {
    ReportsWindow window;
    gallery.show(&window);
    gallery.take(&window, u"reports-empty"_s);
}

void takeReports(const Gallery &gallery) {
    ReportsWindow window;
    gallery.show(&window);
    gallery.take(&window, u"reports-one"_s);
    fillReports();
    gallery.take(&window, u"reports"_s);
    auto *const table = window.findChild<DataTable *>();
    auto *const list = window.findChild<ReportListPage *>();
    for (int row = 0; row < table->model()->rowCount(); ++row) {
        table->selectRow(row);
        emit list->openWanted();
        gallery.take(&window, u"reports-open-%1"_s.arg(row));
        window.stepBack();
    }
    table->selectRow(1);
    gallery.take(&window, u"reports-chosen"_s);
    emit list->deleteWanted();
    gallery.take(&window, u"reports-question"_s);
}

void takeRefresh(const Gallery &gallery) {
    RefreshWindow window;
    gallery.show(&window);
    gallery.take(&window, u"refresh"_s);
}

void takeNotice(const Gallery &gallery) {
    QStringList trace{u"void crit_err_hdlr(int, siginfo_t*, void*)"_s};
    for (int number = 2; number <= 24; ++number)
        trace.append(
            u"[bt]: (%1) /opt/libclock.so(_ZN5Clock4tickEv+0x1f) [0x7f0011223344] Clock::tick()"_s.arg(
                number));
    const QJsonObject note{{u"plugin"_s, u"clock"_s},
                           {u"library"_s, u"/opt/libclock.so"_s},
                           {u"crashes"_s, 3},
                           {u"trace"_s, trace.join(u'\n')}};
    NoticeWindow window(LeftOutNote::from(QJsonDocument(note).toJson()));
    gallery.show(&window);
    gallery.take(&window, u"notice"_s);
    window.findChild<QPushButton *>()->click();
    gallery.take(&window, u"notice-saved"_s);
}

QSize sizeIn(const QString &text) {
    const QStringList sides = text.split(u'x');
    return sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : usualSize;
}

} // namespace

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    if (words.size() < 2) {
        std::fputs("usage: plugin-gallery OUTDIR [WIDTHxHEIGHT [long]]\n", stderr);
        return 2;
    }
    LongTexts longTexts;
    if (words.value(3) == "long"_L1) {
        QLocale::setDefault(QLocale(QLocale::Russian));
        QApplication::installTranslator(&longTexts);
    }
    QApplication::setFont(QFont(u"Liberation Sans"_s));
    QApplication::setPalette(PaletteFactory::getPalette(u"GenericWindow"_s));
    QApplication::setStyle(new StyleOverride(QApplication::style()));
    QDir().mkpath(words[1]);
    const Gallery gallery(words[1], sizeIn(words.value(2)));
    takeEmptyReports(gallery);
    takeSystem(gallery);
    takeNetwork(gallery, qEnvironmentVariable("ZR_SYSROOT") + u"/sys/class/net"_s);
    takeRefresh(gallery);
    takeReports(gallery);
    takeNotice(gallery);
    return 0;
}
