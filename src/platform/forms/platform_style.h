// The look of the program: Fusion, with child window frames as narrow as the layouts of the windows expect.
#pragma once

#include <QProxyStyle>

class PlatformStyle : public QProxyStyle {
    Q_OBJECT

public:
    PlatformStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;

    /// What the frame of a window takes beside its content, in pixels.
    static QSize frameSize();
};
