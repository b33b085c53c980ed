// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMap>
#include <QPair>
#include <QPointer>
#include <QWidget>

#include <memory>

class AppPopups;
class CardsManager;
class ControlBottomPanel;
class GenericPlugin;
class IconPage;
class LauncherHeader;
class LauncherPlugin;
class MeasCard;
class PluginsCollection;
class QAbstractButton;
class QButtonGroup;
class QGridLayout;
class QPushButton;
class QStackedLayout;
class QStackedWidget;
class StatusPanel;
class Ui_LauncherWindow;

/// The one full-screen window of the launcher.
///
/// Shows a page of plug-in icons for the current collection, with a selector button for each collection below
/// it, or the window that a plug-in asked to be shown; around them a header and a left column of status
/// widgets. Collections, cards and plug-ins reach it through `instance()`. GUI thread only.
///
/// For plug-ins: `instance()`, `getStackedWidget()`, `measTitlePrefix()` and `goHome()`.
class LauncherWindow : public QWidget {
    Q_OBJECT

public:
    explicit LauncherWindow(QWidget *parent = nullptr);
    ~LauncherWindow() override;

    /// The window, from its construction on; null before and after.
    static LauncherWindow *instance();

    /// The stack that holds the icon pages (index 0) and every plug-in window that was ever shown. The window
    /// keeps owning it.
    QStackedWidget *getStackedWidget();
    /// The current collection's label followed by ": ", for the titles of measurements.
    QString measTitlePrefix();
    /// Label of `collection`, or of the current one when null; empty for an unknown name.
    QString cardType(PluginsCollection *collection = nullptr);
    /// Leaves every plug-in window, through all of its levels.
    void goHome();
    /// Shows or hides the current collection's information panel; nothing when the panel is empty.
    void toggleInfoPanel();

    /// Makes page, selector button and information panel of `collection` and loads it. The caller keeps the
    /// collection and must take its pages out before deleting it.
    void newCollectionPage(PluginsCollection *collection);
    /// Takes the pages of a card that goes out of the window, but for those that stay.
    void rmCardPage(MeasCard *card);
    /// Shows the LEDs of the current page's own card again, or none.
    void showCurrentLeds();
    /// Unloads those of `collections` that are not persistent and takes their pages out. When the current one
    /// was among them, the first remaining collection takes the screen.
    void rmCollectionPages(const QList<PluginsCollection *> &collections);

    /// Places `icon` in the collection's grid, `row` and `column` counted from 0. An icon far outside the grid
    /// goes to the first free cell, an icon whose cell is taken replaces the earlier one; both are told on
    /// standard error. The page becomes the icon's parent; the plug-in keeps owning it.
    void addIcon(PluginsCollection *collection, QWidget *icon, int row, int column);
    void removeIcon(PluginsCollection *collection, QWidget *icon);
    void addStatusPanelItem(PluginsCollection *collection, QWidget *item);
    void removeStatusPanelItem(QWidget *item);
    void removePluginWindow(QWidget *window);
    void connectWithPlugin(GenericPlugin *plugin);
    void connectWithPlugin(LauncherPlugin *plugin);

public slots:
    /// Replaces the LEDs of the panel.
    void setupLeds(const QStringList &names);
    /// Pairs of LED name and state text.
    void updateLeds(QList<QPair<QString, QString>> &data);
    void setBackButtonText(const QString &text);
    void setCaption(const QString &title);
    void enableSaveButton(bool enable);
    void enableLoadButton(bool enable);

private slots:
    void on_labelInfo_clicked();
    void on_ledPanel_clicked();
    void on_labelSettings_clicked();
    void backButton_clicked();
    void showPluginWindow(QWidget *window);
    void showActiveCardPage();
    void cardSelButtonClicked(QAbstractButton *button);
    void loadButtonClicked();
    void saveButtonClicked();
    void pluginWindowRemoved();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void initLauncherHeader();
    void initReportPanel();
    void initPageLauncher();
    void initCollectionLabels();

    IconPage *makePage(const PluginsCollection *collection);
    void addSelectorButton(PluginsCollection *collection);
    void addInfoPanel(PluginsCollection *collection);
    void rmCollectionPage(PluginsCollection *collection);
    void showFirstCollectionBut(const QList<PluginsCollection *> &removed);
    void switchMeasPage(PluginsCollection *collection);
    void showCollectionPage(PluginsCollection *collection);
    void checkSelectorButton(PluginsCollection *collection);
    bool cardInsertPersist() const;

    void addToStack(QWidget *window);
    void updateReportLabel();
    bool stepBackInWindow();
    void hideActiveDialog();
    bool isCurrentKeeper(const QObject *keeper) const;
    QGridLayout *gridOf(PluginsCollection *collection) const;

    CardsManager *cardsManager = nullptr;
    PluginsCollection *currentCollection = nullptr;
    /// The plug-in window on the screen, for comparison only: it may be deleted. Null while the icon page is shown.
    QWidget *shownWindow = nullptr;
    QPointer<GenericPlugin> currentPlugin;
    QPointer<GenericPlugin> settingsCaller;
    std::unique_ptr<AppPopups> popups;
    std::unique_ptr<Ui_LauncherWindow> ui;
    LauncherHeader *header = nullptr;
    QWidget *emptyPage = nullptr;
    QStackedLayout *pagesLayout = nullptr;
    QMap<PluginsCollection *, QWidget *> collectionPages;
    QMap<PluginsCollection *, QAbstractButton *> collectionButtons;
    ControlBottomPanel *bottomPanel = nullptr;
    QButtonGroup *selectorGroup = nullptr;
    QMap<PluginsCollection *, StatusPanel *> infoPanels;
    QMap<QString, QString> collectionLabels;
    QPushButton *saveButton = nullptr;
    QPushButton *loadButton = nullptr;
};
