// The look of the program: Fusion, with child window frames as narrow as the layouts of the windows expect,
// title bars that can be read in light and dark themes, and labels and tool tips that show plain text.
#pragma once

#include <QProxyStyle>

class QStyleOptionTitleBar;

class PlatformStyle : public QProxyStyle {
    Q_OBJECT

public:
    PlatformStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    /// Labels show plain text. A list or a number that has not the focus leaves the wheel to the page that it
    /// stands on.
    void polish(QWidget *widget) override;
    void unpolish(QWidget *widget) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// What the frame of a window takes beside its content, in pixels.
    static QSize frameSize();

private:
    void drawTitleBar(const QStyleOptionTitleBar &bar, QPainter *painter, const QWidget *widget) const;
};
