// SPDX-License-Identifier: GPL-3.0-or-later
#include "reportviewpage.h"

#include "filecontent.h"
#include "pictureview.h"

#include <fontsizes.h>

#include <QLabel>
#include <QPlainTextEdit>
#include <QScroller>
#include <QStackedLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal documentMargin = 8;

/// Reports set their columns with blanks: letters of one width, from the type family of all other screens.
QFont reportFont() {
    QFont font(u"Liberation Mono"_s);
    font.setStyleHint(QFont::Monospace);
    return FontSizes::sized(font, FontSizes::Small, QFont::Normal);
}

} // namespace

ReportViewPage::ReportViewPage(QWidget *parent)
    : QWidget(parent),
      textView(new QPlainTextEdit),
      pictureView(new PictureView),
      noteLabel(new QLabel),
      views(new QStackedLayout) {
    textView->setFrameShape(QFrame::NoFrame);
    textView->setReadOnly(true);
    textView->setTextInteractionFlags(Qt::NoTextInteraction);
    textView->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    textView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    textView->setFont(reportFont());
    textView->document()->setDocumentMargin(documentMargin);
    textView->setFocusPolicy(Qt::StrongFocus);
    QScroller::grabGesture(textView->viewport(), QScroller::LeftMouseButtonGesture);
    views->addWidget(textView);
    views->addWidget(pictureView);

    noteLabel->setFont(FontSizes::sized(font(), FontSizes::Text, QFont::Bold));
    noteLabel->setWordWrap(true);
    noteLabel->setContentsMargins(12, 8, 12, 8);

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 8, 16, 8);
    layout->setSpacing(0);
    layout->addWidget(noteLabel);
    layout->addLayout(views, 1);
    setFocusProxy(textView);
}

void ReportViewPage::show(const FileContent &content) {
    noteLabel->setText(content.note());
    noteLabel->setVisible(!content.note().isEmpty());
    textView->setPlainText(content.text());
    pictureView->setPicture(content.picture());
    views->setCurrentWidget(content.isPicture() ? static_cast<QWidget *>(pictureView) : textView);
}

void ReportViewPage::clear() {
    show(FileContent());
}
