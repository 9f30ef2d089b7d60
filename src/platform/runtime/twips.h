// Twips, the unit of all places and sizes, and what they are in others: 15 are one pixel at 100 %.
#pragma once

constexpr int TwipsPerPixel = 15;
constexpr int TwipsPerPoint = 20;
constexpr int TwipsPerInch = 1440;

constexpr int toPixels(int twips) {
    return (twips >= 0 ? twips + TwipsPerPixel / 2 : twips - TwipsPerPixel / 2) / TwipsPerPixel;
}
constexpr int toTwips(int pixels) {
    return pixels * TwipsPerPixel;
}
