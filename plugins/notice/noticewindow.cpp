// SPDX-License-Identifier: GPL-3.0-or-later
#include "noticewindow.h"

#include <fontsizes.h>
#include <messageline.h>
#include <reportsdirectory.h>
#include <reportwriter.h>

#include <QDateTime>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScroller>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int touchHeight = 52;
constexpr int buttonWidth = 132;

QLabel *makeLabel(const QString &text, FontSizes::PixelSize size, QFont::Weight weight) {
    auto *const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setFont(FontSizes::sized(label->font(), size, weight));
    label->setWordWrap(true);
    return label;
}

/// Read only; the thumb and the arrow keys scroll it.
QPlainTextEdit *makeTraceView(const QString &trace) {
    QFont font(u"Liberation Mono"_s);
    font.setStyleHint(QFont::Monospace);
    auto *const view = new QPlainTextEdit(trace);
    view->setReadOnly(true);
    view->setTextInteractionFlags(Qt::NoTextInteraction);
    view->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setFont(FontSizes::sized(font, FontSizes::Small, QFont::Normal));
    view->setFocusPolicy(Qt::StrongFocus);
    QScroller::grabGesture(view->viewport(), QScroller::LeftMouseButtonGesture);
    return view;
}

} // namespace

NoticeWindow::NoticeWindow(const LeftOutNote &note, QWidget *parent)
    : PluginWindow(parent),
      shownNote(note),
      traceView(makeTraceView(note.trace())),
      saveButton(new QPushButton(tr("Save report"))),
      messageLine(new MessageLine(this)) {
    setWindowTitle(note.headline());
    saveButton->setFont(FontSizes::sized(font(), FontSizes::Text, QFont::Bold));
    saveButton->setMinimumSize(buttonWidth, touchHeight);
    saveButton->setObjectName(u"buttonSave"_s);
    // Enter presses it too.
    saveButton->setAutoDefault(true);

    auto *const content = new QVBoxLayout;
    content->setContentsMargins(16, 16, 16, 8);
    content->setSpacing(8);
    content->addWidget(makeLabel(note.headline(), FontSizes::Title, QFont::Bold));
    content->addWidget(makeLabel(note.reason(), FontSizes::Text, QFont::Normal));
    content->addWidget(traceView, 1);
    content->addWidget(saveButton, 0, Qt::AlignRight);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(content, 1);
    layout->addWidget(messageLine);
    setFocusProxy(traceView);
    connect(saveButton, &QPushButton::clicked, this, &NoticeWindow::save);
}

void NoticeWindow::hideEvent(QHideEvent *event) {
    messageLine->clear();
    PluginWindow::hideEvent(event);
}

void NoticeWindow::save() {
    const QString stem = QDateTime::currentDateTime().toString(u"'crash-'yyyyMMdd-HHmmss"_s);
    const SavedReport saved = writeReport(reportsDirectory(), stem, shownNote.report());
    if (saved.name.isEmpty())
        messageLine->tellFailure(tr("Report not saved: %1").arg(saved.error));
    else
        messageLine->tellSuccess(tr("Report saved: %1").arg(saved.name));
}
