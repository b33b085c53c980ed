// SPDX-License-Identifier: GPL-3.0-or-later
// Words, one a line, against options of every kind. Only the parser's own exceptions may come out.
#include "qtarg.h"
#include "qtargcmdline.h"
#include "qtargconstraintiface.h"
#include "qtargexceptions.h"
#include "qtarghelp.h"
#include "qtargversion.h"
#include "silentprinters.h"

namespace {

class ShortValue : public QtArgConstraintIface {
public:
    bool accepts(const QVariant &value) const override { return value.toString().size() < 3; }
};

void parse(const QStringList &arguments, QChar delimiter) {
    ShortValue shortValue;
    SilentHelpPrinter helpPrinter;
    SilentVersionPrinter versionPrinter;
    QtArgCmdLine parser(arguments);
    parser.setDelimiter(delimiter);
    QtArgHelp help(&parser);
    help.setPrinter(&helpPrinter);
    QtArgVersion version(&parser, 'v', QStringLiteral("version"));
    version.setPrinter(&versionPrinter);
    QtArg quiet(u'q', QStringLiteral("quiet"), QString(), false, false);
    QtArg file(u'f', QStringLiteral("file"), QString(), true, true);
    QtArg number(u'n', QStringLiteral("number"), QString(), false, true, nullptr, &shortValue);
    QtArg numeric(u'ж', QStringLiteral("numeric"), QString(), false, false);
    for (QtArgIface *const option : QList<QtArgIface *>{&help, &version, &quiet, &file, &number, &numeric})
        parser.addArg(option);
    parser.parse();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const QStringList arguments = QStringList{QString()} + QString::fromUtf8(bytes).split(u'\n');
    // The second delimiter is the sign that values are split off at.
    for (const QChar delimiter : {u'-', u'='}) {
        try {
            parse(arguments, delimiter);
        } catch (const QtArgBaseException &) {
            // A mistake, or a text that was printed.
        }
    }
    return 0;
}
