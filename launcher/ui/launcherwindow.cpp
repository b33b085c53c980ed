// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/launcherwindow.h"

#include "cards/cardsmanager.h"
#include "cards/meascard.h"
#include "flash/flashmanager.h"
#include "plugins/cardpluginscollection.h"
#include "ui/apppopups.h"
#include "ui/icongrid.h"
#include "ui/iconpage.h"
#include "ui/launcherheader.h"
#include "ui/ui_launcherwindow.h"

#include <abstractkeeper.h>
#include <checkbutton.h>
#include <controlbottompanel.h>
#include <genericplugin.h>
#include <launcherplugin.h>
#include <ledpanel.h>
#include <palettefactory.h>
#include <plainline.h>
#include <popuplabel.h>
#include <statuspanel.h>

#include <QApplication>
#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStackedLayout>
#include <QStackedWidget>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr unsigned int lineWidth = 2;
constexpr int reportButtonHeight = 52;
constexpr int infoPanelWidth = 400;
constexpr auto settingsCollection = "zr"_L1;
constexpr int settingsPosition = 1;
constexpr int cardsPosition = 0;
// A panel's own layout is its first child object.
constexpr int MoreThanHBoxLayout = 1;

LauncherWindow *launcherWindow = nullptr;

bool isCardInsertionPersistent(const QObject *object) {
    return object && object->property("cardInsertionPersistent").toBool();
}

/// Cells are told as the configuration counts them, from 1.
void tellPlacement(const PluginsCollection *collection, const QWidget *icon,
                   const IconGrid::Placement &placement) {
    const QString file = collection->fileOfIcon(icon);
    if (placement.wasMoved)
        std::cerr << "Plugin " << qPrintable(file) << " names no cell of the page; placed at row "
                  << placement.row + 1 << ", column " << placement.column + 1 << std::endl;
    for (const QWidget *const replaced : placement.replacedIcons)
        std::cerr << "Plugin " << qPrintable(collection->fileOfIcon(replaced)) << " loses its cell at row "
                  << placement.row + 1 << ", column " << placement.column + 1 << " to " << qPrintable(file)
                  << std::endl;
}

/// What a page says that stays empty although there are plug-ins for it.
void sayWhatFailed(IconPage *page, int failedPlugins) {
    page->setEmptyText(LauncherWindow::tr("Functions that could not be loaded: %1").arg(failedPlugins),
                       LauncherWindow::tr("The launcher's log says why."));
}

/// What an empty page says.
void sayWhatToDo(IconPage *page, const QString &collection) {
    if (collection.isEmpty())
        page->setEmptyText(LauncherWindow::tr("No functions are configured for this instrument"),
                           LauncherWindow::tr("They are listed in zr-launcher.conf, section [plugins]."));
    else
        page->setEmptyText(
            collection == settingsCollection
                ? LauncherWindow::tr("No settings are configured for this instrument")
                : LauncherWindow::tr("No functions are configured for this card"),
            LauncherWindow::tr("They are listed in zr-launcher.conf, section [plugins], key \"%1\".")
                .arg(collection));
}

} // namespace

LauncherWindow::LauncherWindow(QWidget *parent) : QWidget(parent), ui(std::make_unique<Ui_LauncherWindow>()) {
    setProperty("palette_id", u"GenericWindow"_s);
    setAutoFillBackground(true);
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_WindowPropagation);

    launcherWindow = this;
    ui->setupUi(this);
    ui->mainHLayout->insertWidget(1, new PlainLine(PlainLine::Vertical, lineWidth, this));
    ui->labelSettings->hide();
    connect(ui->stackedWidget, SIGNAL(widgetRemoved(int)), this, SLOT(pluginWindowRemoved()));
    initLauncherHeader();
    initReportPanel();
    initPageLauncher();
    ui->ledPanel->setMargins(1, 0, 2, 4);
    initCollectionLabels();

    cardsManager = new CardsManager(this);
    cardsManager->scanAndSubscribe();
    new FlashManager(this);
    popups = std::make_unique<AppPopups>(this, ui->labelSettings);
}

LauncherWindow::~LauncherWindow() {
    // The manager does not own it.
    const std::unique_ptr<PluginsCollection> instrumentsOwn(
        cardsManager->persistentCollection(settingsCollection));
    // The collections take their widgets out of this window, so they end while it still stands.
    for (PluginsCollection *const collection : collectionPages.keys())
        collection->unload();
    delete cardsManager;
    ui->stackedWidget->disconnect(this);
    popups.reset();
    ui.reset();
    launcherWindow = nullptr;
}

LauncherWindow *LauncherWindow::instance() {
    return launcherWindow;
}

void LauncherWindow::initLauncherHeader() {
    header = new LauncherHeader(this);
    connect(header->backButton(), SIGNAL(clicked()), this, SLOT(backButton_clicked()));
    ui->mainLayout->insertWidget(0, header);
    ui->mainLayout->insertWidget(1, new PlainLine(PlainLine::Horizontal, lineWidth, this));
}

void LauncherWindow::initReportPanel() {
    StatusPanel *const panel = ui->labelReport->panel();
    auto *const caption = new QLabel(tr("Report"), panel);
    caption->setAlignment(Qt::AlignHCenter);
    saveButton = new QPushButton(tr("Save"), panel);
    loadButton = new QPushButton(tr("Load"), panel);
    saveButton->setMinimumHeight(reportButtonHeight);
    loadButton->setMinimumHeight(reportButtonHeight);
    ui->labelReport->setVisible(true);
}

void LauncherWindow::initPageLauncher() {
    pagesLayout = new QStackedLayout;
    bottomPanel = new ControlBottomPanel;
    bottomPanel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    ui->pageLauncherLayout->addLayout(pagesLayout);
    ui->pageLauncherLayout->addWidget(bottomPanel);
    connect(saveButton, SIGNAL(clicked()), this, SLOT(saveButtonClicked()));
    connect(loadButton, SIGNAL(clicked()), this, SLOT(loadButtonClicked()));
    selectorGroup = new QButtonGroup(this);
    connect(selectorGroup, SIGNAL(buttonClicked(QAbstractButton *)), this,
            SLOT(cardSelButtonClicked(QAbstractButton *)));
}

void LauncherWindow::initCollectionLabels() {
    collectionLabels[u"e1"_s] = tr("PCM");
    collectionLabels[u"sa"_s] = tr("Signaling");
    collectionLabels[u"da"_s] = tr("Datacom");
    collectionLabels[u"otdr"_s] = tr("OTDR");
    collectionLabels[u"gbe"_s] = tr("GbE");
    collectionLabels[u"zr"_s] = tr("Settings");
    collectionLabels[u"sig3"_s] = tr("Network\nTools");
}

QStackedWidget *LauncherWindow::getStackedWidget() {
    return ui->stackedWidget;
}

QString LauncherWindow::measTitlePrefix() {
    return cardType(currentCollection) + ": "_L1;
}

QString LauncherWindow::cardType(PluginsCollection *collection) {
    const PluginsCollection *const labelled = collection ? collection : currentCollection;
    return labelled ? collectionLabels[labelled->name().toLower()] : QString();
}

void LauncherWindow::newCollectionPage(PluginsCollection *collection) {
    IconPage *const page = makePage(collection);
    collectionPages[collection] = page;
    addSelectorButton(collection);
    addInfoPanel(collection);
    collection->load();
    if (collection->failedPlugins() > 0)
        sayWhatFailed(page, collection->failedPlugins());
    if (!cardInsertPersist()) {
        checkSelectorButton(collection);
        switchMeasPage(collection);
    }
}

IconPage *LauncherWindow::makePage(const PluginsCollection *collection) {
    auto *const page = new IconPage;
    IconGrid::initGrid(qobject_cast<QGridLayout *>(page->layout()), this);
    sayWhatToDo(page, collection->name());
    pagesLayout->addWidget(page);
    return page;
}

void LauncherWindow::addSelectorButton(PluginsCollection *collection) {
    auto *const button = new CheckButton(this);
    button->setText(cardType(collection));
    button->setCheckable(true);
    collectionButtons[collection] = button;
    selectorGroup->addButton(button);
    const int position = collection->name() == settingsCollection ? settingsPosition : cardsPosition;
    bottomPanel->addWidget(button, position, 0, Qt::Alignment());
}

void LauncherWindow::addInfoPanel(PluginsCollection *collection) {
    auto *const panel = new StatusPanel(this, infoPanelWidth);
    panel->setPalette(ui->stackedWidget->palette());
    infoPanels[collection] = panel;
}

bool LauncherWindow::cardInsertPersist() const {
    return isCardInsertionPersistent(QApplication::activeWindow()) ||
           isCardInsertionPersistent(currentPlugin);
}

void LauncherWindow::rmCardPage(MeasCard *card) {
    const QList<CardPluginsCollection *> collections = card->collections();
    rmCollectionPages({collections.cbegin(), collections.cend()});
}

void LauncherWindow::showCurrentLeds() {
    if (currentCollection)
        currentCollection->connectLeds();
}

void LauncherWindow::rmCollectionPages(const QList<PluginsCollection *> &collections) {
    bool currentWasRemoved = false;
    for (PluginsCollection *const collection : collections) {
        if (collection->persistent())
            continue;
        rmCollectionPage(collection);
        currentWasRemoved |= collection == currentCollection;
    }
    if (currentWasRemoved)
        showFirstCollectionBut(collections);
}

void LauncherWindow::showFirstCollectionBut(const QList<PluginsCollection *> &removed) {
    // A card that does not answer refuses its page; the screen must not stay with what is about to be deleted.
    for (PluginsCollection *const next : collectionButtons.keys()) {
        switchMeasPage(next);
        if (!removed.contains(currentCollection))
            return;
    }
    switchMeasPage(nullptr);
}

void LauncherWindow::rmCollectionPage(PluginsCollection *collection) {
    collection->unload();
    delete infoPanels.take(collection);

    QAbstractButton *const button = collectionButtons.take(collection);
    selectorGroup->removeButton(button);
    bottomPanel->removeWidget(button);
    delete button;

    QWidget *const page = collectionPages.take(collection);
    pagesLayout->removeWidget(page);
    delete page;
}

void LauncherWindow::switchMeasPage(PluginsCollection *collection) {
    if (collection && !collection->enter()) {
        checkSelectorButton(currentCollection);
        return;
    }
    if (currentCollection)
        currentCollection->disconnectLeds();
    if (collection)
        collection->connectLeds();
    currentCollection = collection;
    showCollectionPage(collection);
    showActiveCardPage();
    setCaption(cardType());
    checkSelectorButton(collection);
}

void LauncherWindow::showCollectionPage(PluginsCollection *collection) {
    if (collection) {
        pagesLayout->setCurrentWidget(collectionPages.value(collection));
        return;
    }
    if (!emptyPage) {
        auto *const page = new IconPage;
        sayWhatToDo(page, QString());
        emptyPage = page;
        pagesLayout->addWidget(emptyPage);
    }
    pagesLayout->setCurrentWidget(emptyPage);
    setupLeds(QStringList());
}

void LauncherWindow::checkSelectorButton(PluginsCollection *collection) {
    QAbstractButton *const button = collectionButtons.value(collection);
    if (button && !button->isChecked())
        button->setChecked(true);
}

void LauncherWindow::cardSelButtonClicked(QAbstractButton *button) {
    switchMeasPage(collectionButtons.key(button, currentCollection));
}

QGridLayout *LauncherWindow::gridOf(PluginsCollection *collection) const {
    const QWidget *const page = collectionPages.value(collection);
    return page ? qobject_cast<QGridLayout *>(page->layout()) : nullptr;
}

void LauncherWindow::addIcon(PluginsCollection *collection, QWidget *icon, int row, int column) {
    if (QGridLayout *const grid = gridOf(collection))
        tellPlacement(collection, icon, IconGrid::place(grid, icon, row, column));
}

void LauncherWindow::removeIcon(PluginsCollection *collection, QWidget *icon) {
    if (QGridLayout *const grid = gridOf(collection))
        grid->removeWidget(icon);
    // Out of the page as well: the icon's code is about to be unmapped.
    icon->setParent(nullptr);
}

void LauncherWindow::addStatusPanelItem(PluginsCollection *collection, QWidget *item) {
    item->setParent(infoPanels.value(collection));
    item->show();
}

void LauncherWindow::removeStatusPanelItem(QWidget *item) {
    item->setParent(nullptr);
}

void LauncherWindow::removePluginWindow(QWidget *window) {
    ui->stackedWidget->removeWidget(window);
    window->setParent(nullptr);
}

void LauncherWindow::connectWithPlugin(GenericPlugin *plugin) {
    connect(plugin, SIGNAL(setCurrentWidget(QWidget *)), this, SLOT(showPluginWindow(QWidget *)),
            Qt::UniqueConnection);
}

void LauncherWindow::connectWithPlugin(LauncherPlugin *plugin) {
    connect(plugin, SIGNAL(setCurrentWidget(QWidget *)), this, SLOT(showPluginWindow(QWidget *)),
            Qt::UniqueConnection);
}

void LauncherWindow::on_labelInfo_clicked() {
    toggleInfoPanel();
}

void LauncherWindow::toggleInfoPanel() {
    StatusPanel *const panel = infoPanels.value(currentCollection);
    if (!panel)
        return;
    if (panel->isHidden() && panel->children().size() > MoreThanHBoxLayout) {
        panel->setPixmap(ui->labelInfo->downPixmap());
        panel->invoke(ui->labelInfo->frameGeometry().translated(frameGeometry().topLeft()));
    } else {
        panel->hide();
    }
}

void LauncherWindow::on_ledPanel_clicked() {
    if (currentCollection)
        currentCollection->resetLeds();
}

void LauncherWindow::setupLeds(const QStringList &names) {
    ui->ledPanel->clear(false);
    for (const QString &name : names)
        ui->ledPanel->add(name, MeasQuality(0));
    ui->ledPanel->invokeRebuild();
}

void LauncherWindow::updateLeds(QList<QPair<QString, QString>> &data) {
    ui->ledPanel->update(data);
}

void LauncherWindow::saveButtonClicked() {
    if (currentPlugin && currentPlugin->keeper()) {
        currentPlugin->keeper()->save();
        ui->labelReport->panel()->close();
    }
}

void LauncherWindow::loadButtonClicked() {
    if (currentPlugin && currentPlugin->keeper()) {
        currentPlugin->keeper()->load();
        ui->labelReport->panel()->close();
    }
}

bool LauncherWindow::isCurrentKeeper(const QObject *keeper) const {
    return keeper && currentPlugin && currentPlugin->keeper() == keeper;
}

void LauncherWindow::enableSaveButton(bool enable) {
    if (isCurrentKeeper(sender()))
        saveButton->setEnabled(enable);
}

void LauncherWindow::enableLoadButton(bool enable) {
    if (isCurrentKeeper(sender()))
        loadButton->setEnabled(enable);
}

void LauncherWindow::paintEvent(QPaintEvent *) {
    // The left column's widgets stand on the window itself; the header's colour goes on behind them.
    QPainter(this).fillRect(QRect(0, 0, ui->stackedWidget->x(), height()),
                            PaletteFactory::getPalette(u"Chrome"_s).window());
}
