// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

class QStyleOptionButton;
class QStyleOptionProgressBar;
class QStyleOptionTab;
class QStyleOptionToolButton;

/// The instrument's look, laid over another style, so that plain Qt widgets of a plug-in look right by
/// themselves.
///
/// What can be pressed is 52 pixels high and answers with the accent colour at once: nothing is animated.
/// The focus is a ring that can be seen from two metres, scroll bars are wide enough for a thumb, there are
/// no tool tips. Colours are those of the widget's palette, letter sizes those of its class where it has none
/// of its own. A widget whose property "palette_id" names a palette of PaletteFactory gets that palette when
/// it is first shown, and again whenever the property changes after that. GUI thread only.
class StyleOverride : public QProxyStyle {
    Q_OBJECT

public:
    /// Takes `base` over. The application's own current style may be handed in.
    explicit StyleOverride(QStyle *base);

    /// Gives every widget the palette that it names anew: after a switch of PaletteFactory to its other set.
    static void applyPalettes();

    using QProxyStyle::polish;
    void polish(QApplication *application) override;
    void polish(QWidget *widget) override;
    using QProxyStyle::unpolish;
    void unpolish(QWidget *widget) override;
    bool eventFilter(QObject *object, QEvent *event) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;

private:
    void drawButton(ControlElement element, const QStyleOptionButton &button, QPainter *painter,
                    const QWidget *widget) const;
    void drawProgressBar(ControlElement element, const QStyleOptionProgressBar &bar, QPainter *painter,
                         const QWidget *widget) const;
    void drawTab(ControlElement element, const QStyleOptionTab &tab, QPainter *painter,
                 const QWidget *widget) const;
    void drawOther(ControlElement element, const QStyleOption *option, QPainter *painter,
                   const QWidget *widget) const;
    void drawToolButton(const QStyleOptionToolButton &button, QPainter *painter, const QWidget *widget) const;
};
