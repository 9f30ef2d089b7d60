// Twips and pixels: 15 twips are one pixel at 100 %.
#pragma once

constexpr int TwipsPerPixel = 15;

constexpr int toPixels(int twips) {
    return (twips >= 0 ? twips + TwipsPerPixel / 2 : twips - TwipsPerPixel / 2) / TwipsPerPixel;
}
constexpr int toTwips(int pixels) {
    return pixels * TwipsPerPixel;
}
