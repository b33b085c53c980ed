// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/flashdialog.h"

#include "zrlauncherconfig.h"

#include <palettefactory.h>
#include <warningwindow.h>

#include <QFrame>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int sideMargin = 4;
constexpr int edgeMargin = 4;
constexpr int dimming = 170;
constexpr int contentMargin = 1;
constexpr int spacing = 8;
constexpr int questionMargin = 8;
constexpr int questionPointSize = 18;
constexpr QSize spaceBesideBar(5, 30);
constexpr int fullBar = 100;

QString mountDirectory() {
    return ZrLauncherConfig(u"flash"_s, u"dir"_s).string();
}

} // namespace

FlashDialog::FlashDialog(QWidget *parent) : TranslucentWindow(parent, sideMargin, edgeMargin, dimming) {
    setupFrame();
    connect(yesButton, SIGNAL(clicked()), this, SLOT(exportClicked()));
    connect(noButton, SIGNAL(clicked()), this, SLOT(reject()));
}

void FlashDialog::setupFrame() {
    contentFrame = new QFrame;
    contentFrame->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    auto *const column = new QVBoxLayout(contentFrame);
    column->setSpacing(spacing);
    question = makeQuestion();
    column->addWidget(question, 5);
    QFrame *const progressFrame = makeProgressFrame();
    column->addWidget(progressFrame, 0);
    column->addLayout(makeButtonRow(), 1);
    addContent(contentFrame, contentMargin, contentMargin, contentMargin, contentMargin);
    contentFrame->setStyleSheet(
        u" QFrame { border-radius: 10px; border: 2px solid rgba( 45, 59, 111, 255 );background-color: rgba( 235, 233, 255, 255 );font: inherit;font-size: inherit;}"_s);
    progressFrame->setStyleSheet(u" QFrame { border: 0px; }"_s);
    // A label is a frame, too: a second border inside the first would crowd its text.
    question->setStyleSheet(u"QLabel { border: 0px; }"_s);
    // The sheet's ground is light by night too, and what a sheet covers takes no palette from its parent.
    for (QWidget *const child : contentFrame->findChildren<QWidget *>())
        child->setPalette(PaletteFactory::getPalette(u"Paper"_s));
}

QLabel *FlashDialog::makeQuestion() {
    auto *const label = new QLabel(
        tr("Do you want to copy all saved reports and trace files to flash?\n\n They will be saved to "
           "\"%1\" folder of\n a root directory of your flash card.\n\n All following reports and trace "
           "files will be saved to device\n as well as to flash card.")
            .arg(ZrLauncherConfig(u"paths"_s, u"main"_s).string()));
    QFont font = label->font();
    font.setPointSize(questionPointSize);
    font.setBold(true);
    label->setFont(font);
    label->setMargin(questionMargin);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    return label;
}

QFrame *FlashDialog::makeProgressFrame() {
    auto *const frame = new QFrame;
    frame->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    auto *const row = new QHBoxLayout(frame);
    progressBar = new QProgressBar;
    progressBar->setRange(0, fullBar);
    progressBar->setValue(0);
    progressBar->setTextVisible(false);
    row->addWidget(progressBar, 0);
    // Only now: without a parent it would be shown as a window of its own.
    progressBar->setVisible(true);
    row->addItem(new QSpacerItem(spaceBesideBar.width(), spaceBesideBar.height(), QSizePolicy::Minimum,
                                 QSizePolicy::Minimum));
    return frame;
}

QBoxLayout *FlashDialog::makeButtonRow() {
    yesButton = createButton(tr("Yes"), false);
    noButton = createButton(tr("No"), false);
    auto *const row = new QHBoxLayout;
    row->addWidget(yesButton, 1);
    row->addStretch(2);
    row->addWidget(noButton, 1);
    return row;
}

void FlashDialog::showDialog() {
    if (isAsking) {
        isAskedAgain = true;
        return;
    }
    const QPointer<FlashDialog> alive = this;
    isAsking = true;
    ask();
    if (!alive)
        return;
    isAsking = false;
    // A drive that came and went meanwhile is not asked about.
    if (std::exchange(isAskedAgain, false) && !mountDirectory().isEmpty())
        QMetaObject::invokeMethod(this, &FlashDialog::showDialog, Qt::QueuedConnection);
}

void FlashDialog::ask() {
    progressBar->hide();
    progressBar->setValue(0);
    progressBar->setTextVisible(false);
    const QString drive = mountDirectory();
    const int result = exec();
    // The answer may come late, from below another question: it counts for the drive that was asked about.
    ZrLauncherConfig(u"flash"_s, u"save"_s) = result != 0 && mountDirectory() == drive;
}

void FlashDialog::exportClicked() {
    enableButtons(false);
    progressBar->show();
    progressBar->setTextVisible(true);
    emit exportFiles();
}

void FlashDialog::setProgress(int curCount, int maxCount) {
    const float left = static_cast<float>(curCount) / static_cast<float>(maxCount);
    progressBar->setValue(maxCount == 0 ? fullBar : static_cast<int>(std::lround((1.0F - left) * 100.0F)));
}

void FlashDialog::closeGracefully() {
    // A copy that ends after the drive was pulled must not turn the answer round.
    if (isVisible())
        accept();
    enableButtons(true);
}

void FlashDialog::reject() {
    if (yesButton->isEnabled())
        TranslucentWindow::reject();
}

void FlashDialog::enableButtons(bool enable) {
    yesButton->setEnabled(enable);
    noButton->setEnabled(enable);
}

void FlashDialog::showWarning(const QString &msg) {
    warning()->show(msg, QString());
}

WarningWindow *FlashDialog::warning() {
    if (!warningWindow)
        warningWindow = new WarningWindow(this);
    return warningWindow;
}

/// The question's lines are broken as it wants, where there is room for that.
void FlashDialog::fitContents() {
    const QSize room =
        wholeRoom().shrunkBy(QMargins(contentMargin, contentMargin, contentMargin, contentMargin));
    question->setWordWrap(false);
    contentFrame->setMaximumSize(room);
    if (contentFrame->sizeHint().width() > room.width())
        question->setWordWrap(true);
    contentFrame->setMinimumWidth(question->wordWrap() ? room.width() : 0);
}
