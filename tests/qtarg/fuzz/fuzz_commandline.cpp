// SPDX-License-Identifier: GPL-3.0-or-later
// Words, one a line, against options of every kind. Only the parser's own exceptions may come out.
#include "qtarg.h"
#include "qtargcmdline.h"
#include "qtargconstraintiface.h"
#include "qtargexceptions.h"

namespace {

class ShortValue : public QtArgConstraintIface {
public:
    bool accepts(const QVariant &value) const override { return value.toString().size() < 3; }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    ShortValue shortValue;
    QtArgCmdLine parser(QStringList{QString()} + QString::fromUtf8(bytes).split(QLatin1Char('\n')));
    QtArg quiet(u'q', QStringLiteral("quiet"), QString(), false, false);
    QtArg file(u'f', QStringLiteral("file"), QString(), true, true);
    QtArg number(u'n', QStringLiteral("number"), QString(), false, true, nullptr, &shortValue);
    parser.addArg(quiet);
    parser.addArg(file);
    parser.addArg(number);
    try {
        parser.parse();
    } catch (const QtArgBaseException &exception) {
        return exception.qwhat().isNull() ? -1 : 0;
    }
    return 0;
}
