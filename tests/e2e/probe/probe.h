// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

class QWidget;

/// Answers questions about the launcher's widgets on the session bus, and presses them as a finger does.
class Probe : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "zr.probe")

public slots:
    /// Width and height of the launcher's window.
    QStringList windowSize() const;
    QString caption() const;
    QString backButtonText() const;
    /// Object name, or else class name, of what the main stack shows.
    QString shownPage() const;
    QStringList selectorTexts() const;
    /// How many buttons of pages there are, those that a window covers among them.
    int selectorCount() const;
    /// Which of them is the shown page's, counted from 0; -1 when none is.
    int checkedSelector() const;
    bool pressSelector(int index) const;
    QStringList iconTexts() const;
    /// Texts of the labels and text views on what the main stack shows.
    QStringList pageTexts() const;
    /// Names of the lamps in the left column, each followed by a colon and its quality as a number.
    QStringList leds() const;
    /// Class of the pop-up that is open.
    QString shownPopup() const;
    void closePopup() const;
    bool isActive() const;
    /// Colour of the page's ground, as it is painted: "#rrggbb".
    QString ground() const;
    /// Keys that windows were given since the last question: numbers, negative when let go.
    QStringList keysHeard();
    /// Whether the label of that name shows a picture.
    bool hasPicture(const QString &name) const;
    /// Text of the topmost message that is open.
    QString message() const;
    /// Percentage of the progress bar in the topmost dialog, -1 when none is shown.
    int progress() const;
    bool isVisible(const QString &name) const;
    /// Presses and lets go in the middle of the visible widget of that object name or that text.
    bool press(const QString &nameOrText) const;
    /// The same with the key Enter, after the focus has gone there.
    bool pressWithKey(const QString &nameOrText) const;
    /// Presses and lets go a key of the instrument, below every window.
    void pressDeviceKey(int key) const;
    /// Presses a row of the visible list or table.
    bool pressRow(int row) const;
    void goHome() const;
    /// Numbers of widgets, objects below the window, descriptors, match rules and resident bytes.
    QStringList holdings() const;
    /// Shows the probe's own window, which has a shortcut on F3.
    void showShortcutWindow() { emit windowWanted(); }
    /// How often that shortcut was used.
    int shortcuts() const { return shortcutCount; }
    /// Texts that are not shown whole (see clippedtexts.h).
    QStringList clippedTexts() const;
    /// Texts that the widgets of a class paint, hidden ones too.
    QStringList paintedTexts(const QString &className) const;
    /// Whether the screen shows the window as it would be painted now.
    bool isScreenUpToDate() const;
    /// Writes a picture of the window with its open pop-up.
    bool grab(const QString &file) const;

public:
    Probe();

    void countShortcut() { ++shortcutCount; }
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void windowWanted();

private:
    int shortcutCount = 0;
    QStringList heardKeys;

    QWidget *named(const QString &nameOrText) const;
};
