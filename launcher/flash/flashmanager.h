// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <memory>

class DirCopier;
class FlashDialog;
class FlashSpy;

/// Copies the saved reports to a flash drive when the user wants it: joins the drive's comings and goings, the question
/// and the copy. GUI thread only.
class FlashManager : public QObject {
    Q_OBJECT

public:
    /// `parent` owns the manager, and the question covers it.
    explicit FlashManager(QWidget *parent);
    ~FlashManager() override;

public slots:
    void exportFiles();
    void flashRemoved();
    void dirCopierFailed(int errorCode, const QString &errorDesc);

private:
    FlashSpy *spy;
    FlashDialog *dialog;
    std::unique_ptr<DirCopier> copier;
    /// From the start of a copy until a drive is removed while the question is open.
    bool exporting = false;
};
