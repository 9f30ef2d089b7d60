// The source arrays of a material's tables over temperature, which design values are computed from.
#pragma once

#include "data/source_array.h"

struct SourceArrays {
    SourceArray aRp02;
    SourceArray aRp10;
    SourceArray aRm;
    SourceArray aModElast;
    SourceArray aThermExp;
    SourceArray aThermCond;
    SourceArray aSpecThermCap;
    SourceArray aSpecElecRes;

    /// By the table's key. Raises 9 for a key without one.
    SourceArray &of(const QString &key);
    const SourceArray &of(const QString &key) const { return const_cast<SourceArrays *>(this)->of(key); }
};
