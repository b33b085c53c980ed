// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"
#include "crashhandler.h"
#include "framebuffer.h"
#include "installation.h"
#include "power/keyfilter.h"
#include "servicenotifier.h"
#include "sessionbus.h"
#include "terminationsignals.h"
#include "ui/colourchoice.h"
#include "ui/launcherwindow.h"

#include <qwsserver.h>
#include <styleoverride.h>
#include <surfacekeeper.h>

#include <QApplication>
#include <QDebug>
#include <QFont>
#include <QLocale>
#include <QPixmapCache>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int screenWidth = 800;
/// All icons of a few pages, by day and by night. Those of cards that have gone stay until the room is used up.
constexpr int pictureCacheKibibytes = 2048;

QStringList wordsOf(int argc, char *argv[]) {
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return words;
}

void loadTranslation(QTranslator &translator) {
    const bool loaded = translator.load(u"resources/launcher_ru"_s, u":/main"_s);
    qDebug() << "Loading translator..." << (loaded ? "OK" : "Failed");
    // Numbers, sizes and dates go with the texts.
    if (loaded)
        QLocale::setDefault(QLocale(translator.language()));
}

void dress() {
    QPixmapCache::setCacheLimit(pictureCacheKibibytes);
    QApplication::setFont(QFont(u"Liberation Sans"_s));
    ColourChoice::wear(ColourChoice::stored());
    QApplication::setStyle(new StyleOverride(QApplication::style()));
}

} // namespace

int main(int argc, char *argv[]) {
    installCrashHandler();
    // The command line is answered before there is an application object: help has to work over a line
    // without a display, and must not touch the screen of a launcher that runs already.
    QTranslator translator;
    loadTranslation(translator);
    if (const std::optional<int> status = answerCommandLine(wordsOf(argc, argv)))
        return *status;

    const QApplication application(argc, argv);
    const TerminationSignals terminationSignals;
    const SurfaceKeeper surfaceKeeper;
    QWSServer::setCursorVisible(false);
    QCoreApplication::installTranslator(&translator);
    registerInstallation();
    // Early, since it has to wait for an answer that the window does not need yet; and not before the environment is what
    // it will be, which it reads in a thread of its own.
    SessionBus::instance();
    dress();

    LauncherWindow window;
    KeyFilter keyFilter(&window);
    QWSServer::addKeyboardFilter(&keyFilter);
    window.resize(screenWidth, fbHeight());
    const ServiceNotifier serviceNotifier(&window);
    window.show();
    // Where no window manager gives it the keys.
    window.activateWindow();
    QApplication::setOverrideCursor(Qt::BlankCursor);
    const int status = QApplication::exec();
    QWSServer::removeKeyboardFilter();
    return status;
}
