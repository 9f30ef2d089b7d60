// What the fuzz targets share.
#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>

#include <QByteArray>
#include <QString>

#include "platform/runtime/regional_settings.h"
#include "platform/runtime/runtime_error.h"
#include "tests/fuzz/claim.h"

namespace fuzz {

/// An input's first byte says how the rest of it, a text, is to be used.
struct Input {
    Input(const std::uint8_t *data, std::size_t size)
        : flags(size > 0 ? data[0] : std::uint8_t(0))
        , text(QString::fromUtf8(reinterpret_cast<const char *>(data) + 1,
                                 size > 0 ? static_cast<qsizetype>(size) - 1 : 0)) {}

    bool flag(int bit) const { return (flags >> bit & 1) != 0; }

    std::uint8_t flags;
    QString text;
};

/// Of the systems that people have: point and comma, comma and point, comma and a narrow blank, no groups.
inline void setRegion(int which) {
    static const RegionalSettings regions[] = {{'.', ',', "M/d/yyyy", "h:mm:ss AP"},
                                               {',', '.', "dd.MM.yyyy", "HH:mm:ss"},
                                               {',', QChar(0x202f), "dd/MM/yyyy", "HH:mm:ss"},
                                               {'.', QChar(), "yyyy-MM-dd", "HH:mm:ss"}};
    RegionalSettings::setCurrent(regions[which & 3]);
}

/// Makes the call, which may raise these errors and no other.
template <typename Call>
void allowing(std::initializer_list<int> errors, Call call) {
    try {
        call();
    } catch (const RuntimeError &error) {
        if (std::find(errors.begin(), errors.end(), error.number()) != errors.end()) return;
        std::fprintf(stderr, "raised %d: %s\n", error.number(), qPrintable(error.description()));
        std::abort();
    }
}

} // namespace fuzz
