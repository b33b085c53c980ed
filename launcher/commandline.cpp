// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"

#include "buildinfo.h"

#include <qtargcmdline.h>
#include <qtargdefaulthelpprinter.h>
#include <qtargdefaultversionprinter.h>
#include <qtargexceptions.h>
#include <qtarghelp.h>
#include <qtargversion.h>

#include <QDebug>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

// Everything that does not lead to a run counts as a failed start, help and versions too.
constexpr int notStarted = 1;

const QSet<QString> toolkitOptionsWithValue{
    u"platform"_s,    u"platformpluginpath"_s, u"platformtheme"_s, u"plugin"_s, u"qwindowgeometry"_s,
    u"qwindowicon"_s, u"qwindowtitle"_s,       u"session"_s,       u"style"_s,  u"stylesheet"_s,
};
const QSet<QString> toolkitOptionsAlone{u"reverse"_s, u"widgetcount"_s};
const QSet<QString> toolkitOptionsWithEquals{u"style"_s, u"stylesheet"_s, u"qmljsdebugger"_s};

/// The toolkit accepts one dash as well as two.
QString optionName(const QString &word) {
    if (!word.startsWith(u'-'))
        return {};
    return word.mid(word.startsWith("--"_L1) ? 2 : 1);
}

void parse(const QStringList &arguments) {
    const QString name = QString::fromUtf8(build_name);
    const QString copyright = QString::fromUtf8(build_copyright);
    const QString shortVersion = name + u'\n' + copyright;
    const QString longVersion = name + u'\n' + QString::fromUtf8(build_info) + u'\n' + copyright;

    QtArgCmdLine parser(arguments);
    QtArgDefaultHelpPrinter helpPrinter(name + u'.');
    QtArgHelp help(&parser);
    help.setPrinter(&helpPrinter);
    QtArgDefaultVersionPrinter versionPrinter(shortVersion);
    QtArgVersion version(&parser, 'v', u"version"_s);
    version.setPrinter(&versionPrinter);
    QtArgDefaultVersionPrinter longVersionPrinter(longVersion);
    QtArgVersion vversion(&parser, 'd', u"vversion"_s);
    vversion.setPrinter(&longVersionPrinter);

    parser.addArg(help);
    parser.addArg(version);
    parser.addArg(vversion);
    parser.parse();
}

} // namespace

QStringList launcherArguments(const QStringList &arguments) {
    QStringList own = arguments.first(qMin<qsizetype>(arguments.size(), 1));
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString name = optionName(arguments[i]);
        const qsizetype equals = name.indexOf(u'=');
        const bool hasNext = i + 1 < arguments.size();
        if (toolkitOptionsWithValue.contains(name) && hasNext)
            ++i;
        else if (equals < 0 ? !toolkitOptionsAlone.contains(name)
                            : !toolkitOptionsWithEquals.contains(name.first(equals)))
            own.append(arguments[i]);
    }
    return own;
}

std::optional<int> answerCommandLine(const QStringList &arguments) {
    try {
        parse(launcherArguments(arguments));
    } catch (const QtHelpHasPrintedEx &) {
        return notStarted;
    } catch (const QtVersionHasPrintedEx &) {
        return notStarted;
    } catch (const QtArgBaseException &mistake) {
        qDebug().noquote().nospace() << "Invalid command line parameters: " << mistake.qwhat();
        return notStarted;
    } catch (...) {
        return notStarted;
    }
    return std::nullopt;
}
