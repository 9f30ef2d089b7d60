#include "platform/forms/screen.h"

#include <QGuiApplication>
#include <QScreen>

#include "platform/runtime/twips.h"

namespace {

QSize testSize;

QSize screenSize() {
    if (!testSize.isEmpty()) return testSize;
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->size() : QSize();
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

void Screen::setSizeForTest(const QSize &pixels) {
    testSize = pixels;
}
