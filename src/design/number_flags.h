// How the system reads and writes numbers, as far as values depend on it.
#pragma once

struct NumberFlags {
    /// The decimal sign is a point.
    bool bDecimalPoint = false;
    /// A comma is passed over as a group sign: "1,5" is read as fifteen.
    bool bCommaGroup = false;

    /// By trying out the regional settings.
    static NumberFlags fromSystem();
};
