// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <pluginwindow.h>

#include <memory>

class FactsPage;
class MessageLine;
class QStackedLayout;
class StoragePage;
class SystemReader;
class VisibleTimer;

/// The window of the System plug-in: the facts, and below them the storage. Lives only while it can be seen.
class SystemWindow : public PluginWindow {
    Q_OBJECT

public:
    explicit SystemWindow(std::shared_ptr<SystemReader> reader, QWidget *parent = nullptr);

    bool stepBack() override;
    /// Tells the launcher's header which level is shown; the header has forgotten it when the window is brought
    /// up again.
    void announceLevel();

public slots:
    void tellSuccess(const QString &message);
    void tellFailure(const QString &message);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void applyRefreshRate();
    void refresh();
    void showFacts();
    void showStorage();

    std::shared_ptr<SystemReader> systemReader;
    QStackedLayout *levels;
    FactsPage *factsPage;
    StoragePage *storagePage;
    MessageLine *messageLine;
    VisibleTimer *refreshTimer;
};
