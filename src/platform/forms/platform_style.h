// The look of the program: Fusion, with child window frames as narrow as the layouts of the windows expect,
// and title bars that can be read in light and dark themes.
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

    /// What the frame of a window takes beside its content, in pixels.
    static QSize frameSize();

private:
    void drawTitleBar(const QStyleOptionTitleBar &bar, QPainter *painter, const QWidget *widget) const;
};
