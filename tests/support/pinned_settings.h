// Regional settings of a test's own.
#pragma once

#include "platform/runtime/regional_settings.h"

/// In force until it goes out of scope.
class PinnedSettings {
public:
    explicit PinnedSettings(const RegionalSettings &settings = RegionalSettings()) {
        RegionalSettings::setCurrent(settings);
    }
    PinnedSettings(char16_t decimalSign, char16_t groupSign)
        : PinnedSettings(withSigns(decimalSign, groupSign)) {}
    ~PinnedSettings() { RegionalSettings::setCurrent(m_before); }
    PinnedSettings(const PinnedSettings &) = delete;
    PinnedSettings &operator=(const PinnedSettings &) = delete;

private:
    static RegionalSettings withSigns(char16_t decimalSign, char16_t groupSign) {
        RegionalSettings settings;
        settings.decimalSign = QChar(decimalSign);
        settings.groupSign = QChar(groupSign);
        return settings;
    }

    RegionalSettings m_before = RegionalSettings::current();
};
