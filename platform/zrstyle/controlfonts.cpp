// SPDX-License-Identifier: GPL-3.0-or-later
#include "controlfonts.h"

#include <QApplication>
#include <QFont>

namespace {

constexpr int textPixels = 18;
constexpr int captionPixels = 14;

constexpr const char *boldClasses[] = {"QPushButton", "QToolButton", "QTabBar", "QGroupBox"};
constexpr const char *textClasses[] = {"QCheckBox", "QRadioButton",      "QAbstractSpinBox",  "QLineEdit",
                                       "QComboBox", "QAbstractItemView", "QComboBoxListView", "QMenu",
                                       "QTextEdit", "QPlainTextEdit",    "QMessageBox"};

QFont sized(int pixels, QFont::Weight weight) {
    QFont font = QApplication::font();
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

} // namespace

void ControlFonts::apply() {
    for (const char *const name : boldClasses)
        QApplication::setFont(sized(textPixels, QFont::Bold), name);
    for (const char *const name : textClasses)
        QApplication::setFont(sized(textPixels, QFont::Normal), name);
    for (const char *const name : {"QHeaderView", "QProgressBar"})
        QApplication::setFont(sized(captionPixels, QFont::Bold), name);
}
