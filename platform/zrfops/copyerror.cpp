// SPDX-License-Identifier: GPL-3.0-or-later
#include "copyerror.h"

#include <QCoreApplication>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Meaning {
    int code;
    const char *text;
};

constexpr std::array meanings{
    Meaning{CopyError::Busy, QT_TRANSLATE_NOOP("DirCopier", "Another copy is still running.")},
    Meaning{CopyError::NotStarted,
            QT_TRANSLATE_NOOP("DirCopier", "The copying program could not be started.")},
    Meaning{1, QT_TRANSLATE_NOOP("DirCopier", "The copying program did not understand its orders.")},
    Meaning{2, QT_TRANSLATE_NOOP("DirCopier", "The parts of the copying program do not fit together.")},
    Meaning{3, QT_TRANSLATE_NOOP("DirCopier", "What is to be copied, or the place for it, is not there.")},
    Meaning{4, QT_TRANSLATE_NOOP("DirCopier", "The copying program cannot do what it was asked for.")},
    Meaning{5, QT_TRANSLATE_NOOP("DirCopier", "The parts of the copying program could not begin to talk.")},
    Meaning{6, QT_TRANSLATE_NOOP("DirCopier", "The copying program cannot write its log.")},
    Meaning{10, QT_TRANSLATE_NOOP("DirCopier", "A connection broke while copying.")},
    Meaning{11, QT_TRANSLATE_NOOP("DirCopier",
                                  "The drive is full, cannot be written, or did not take all the data.")},
    Meaning{12, QT_TRANSLATE_NOOP("DirCopier", "The copying program lost its data stream.")},
    Meaning{13, QT_TRANSLATE_NOOP("DirCopier", "The copying program cannot tell what it does.")},
    Meaning{14, QT_TRANSLATE_NOOP("DirCopier", "The parts of the copying program lost each other.")},
    Meaning{20, QT_TRANSLATE_NOOP("DirCopier", "The copy was ended before it was complete.")},
    Meaning{21, QT_TRANSLATE_NOOP("DirCopier", "A part of the copying program could not be waited for.")},
    Meaning{22, QT_TRANSLATE_NOOP("DirCopier", "There was not enough memory to copy.")},
    Meaning{23, QT_TRANSLATE_NOOP("DirCopier", "Some files could not be copied.")},
    Meaning{24, QT_TRANSLATE_NOOP("DirCopier", "Some files vanished before they could be copied.")},
    Meaning{25, QT_TRANSLATE_NOOP("DirCopier", "The copying program would have had to delete too much.")},
    Meaning{30, QT_TRANSLATE_NOOP("DirCopier", "The copy took too long.")},
    Meaning{35, QT_TRANSLATE_NOOP("DirCopier", "The other side of the copy took too long to answer.")},
};

} // namespace

QString CopyError::sentence(int code) {
    for (const Meaning &meaning : meanings) {
        if (meaning.code == code)
            return QCoreApplication::translate("DirCopier", meaning.text);
    }
    return QCoreApplication::translate("DirCopier", "The copy failed for an unknown reason.");
}

QString CopyError::description(int code, const QString &firstMessage) {
    QString text = sentence(code);
    if (code > 0)
        text += u' ' + QCoreApplication::translate("DirCopier", "(rsync: exit code %1)").arg(code);
    if (!firstMessage.isEmpty())
        text += u'\n' + firstMessage;
    return text;
}
