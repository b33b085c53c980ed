// SPDX-License-Identifier: GPL-3.0-or-later
#include "outcome.h"

#include "qtargcmdline.h"
#include "qtargexceptions.h"

using namespace Qt::Literals::StringLiterals;

QString outcomeOf(QtArgCmdLine &parser) {
    try {
        parser.parse();
    } catch (const QtHelpHasPrintedEx &) {
        return u"help printed"_s;
    } catch (const QtVersionHasPrintedEx &) {
        return u"version printed"_s;
    } catch (const QtArgBaseException &exception) {
        return exception.qwhat();
    }
    return u"run"_s;
}

QStringList wordsOf(const QString &line) {
    return QStringList{u"program"_s} + line.split(u' ', Qt::SkipEmptyParts);
}
