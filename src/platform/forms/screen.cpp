#include "platform/forms/screen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include "platform/forms/platform_style.h"
#include "platform/runtime/twips.h"

namespace {

constexpr int heightOfAPanel = 48; // pixels

QSize testSize;
QRect testFreeArea;

QSize screenSize() {
    if (!testSize.isEmpty()) return testSize;
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->size() : QSize();
}

/// What the desktop puts around the window; before it has, what it is likely to.
QMargins frameOf(const QWidget &window) {
    if (window.windowFlags().testFlag(Qt::FramelessWindowHint)) return {};
    const QMargins frame =
        window.windowHandle() != nullptr ? window.windowHandle()->frameMargins() : QMargins();
    if (!frame.isNull()) return frame;
    const QSize likely = PlatformStyle::frameSize();
    const int side = likely.width() / 2;
    return {side, likely.height() - side, side, side};
}

} // namespace

int Screen::Width() {
    return toTwips(screenSize().width());
}

int Screen::Height() {
    return toTwips(screenSize().height());
}

int Screen::TwipsPerPixelX() {
    return TwipsPerPixel;
}

QRect Screen::freeArea(const QWidget &window) {
    if (!testSize.isEmpty()) return testFreeArea.isEmpty() ? QRect({}, testSize) : testFreeArea;
    const QRect available = window.screen()->availableGeometry();
    // Wayland tells no program of the desktop's panels.
    const bool isGuess = QGuiApplication::platformName().startsWith(QLatin1String("wayland")) &&
                         available == window.screen()->geometry();
    return isGuess ? available.adjusted(0, 0, 0, -heightOfAPanel) : available;
}

void Screen::fit(QWidget &window) {
    if (window.isMaximized() || window.isFullScreen() || window.isMinimized()) return;
    const QRect inside = freeArea(window).marginsRemoved(frameOf(window));
    const QSize size = window.size().boundedTo(inside.size()).expandedTo(window.minimumSize());
    if (size != window.size()) window.resize(size);
    // Where the program gave no place the desktop finds one.
    if (!window.isVisible() && !window.testAttribute(Qt::WA_Moved)) return;
    QRect place = window.geometry();
    place.moveRight(qMin(place.right(), inside.right()));
    place.moveBottom(qMin(place.bottom(), inside.bottom()));
    place.moveLeft(qMax(place.left(), inside.left()));
    place.moveTop(qMax(place.top(), inside.top()));
    if (place != window.geometry()) window.setGeometry(place);
}

void Screen::setSizeForTest(const QSize &pixels, const QRect &freeArea) {
    testSize = pixels;
    testFreeArea = freeArea;
}
