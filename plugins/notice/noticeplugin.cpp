// SPDX-License-Identifier: GPL-3.0-or-later
#include "noticeplugin.h"

#include "noticewindow.h"

#include <icontile.h>

using namespace Qt::Literals::StringLiterals;

NoticePlugin::NoticePlugin() : note(LeftOutNote::read(NOTICE_NUMBER)) {
    setTitle(note.headline());
}

QWidget *NoticePlugin::createWindow() {
    return new NoticeWindow(note);
}

QWidget *NoticePlugin::iconWidget() {
    if (!icon) {
        const QIcon picture(u":/notice%1/notice.png"_s.arg(NOTICE_NUMBER));
        auto *const tile = own(new IconTile(picture, note.headline()));
        tile->setObjectName(u"iconNotice"_s);
        connect(tile, &IconTile::clicked, this, &NoticePlugin::showWindow);
        icon = tile;
    }
    return icon;
}
