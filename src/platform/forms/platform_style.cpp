#include "platform/forms/platform_style.h"

#include <QSize>

namespace {
constexpr int frameWidth = 3;
constexpr int titleBarHeight = 22;
} // namespace

PlatformStyle::PlatformStyle()
    : QProxyStyle(QStringLiteral("Fusion")) {}

int PlatformStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const {
    if (metric == PM_MdiSubWindowFrameWidth) return frameWidth;
    if (metric == PM_TitleBarHeight) return titleBarHeight;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize PlatformStyle::frameSize() {
    return {2 * frameWidth, titleBarHeight + frameWidth};
}
