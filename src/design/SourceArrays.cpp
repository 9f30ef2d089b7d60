#include "design/SourceArrays.h"

#include "platform/runtime/runtime_error.h"

SourceArray &SourceArrays::of(const QString &key) {
    static const std::pair<const char16_t *, SourceArray SourceArrays::*> arrays[] = {
        {u"Rp02", &SourceArrays::aRp02},
        {u"Rp10", &SourceArrays::aRp10},
        {u"Rm", &SourceArrays::aRm},
        {u"ModElast", &SourceArrays::aModElast},
        {u"ThermExp", &SourceArrays::aThermExp},
        {u"ThermCond", &SourceArrays::aThermCond},
        {u"SpecThermCap", &SourceArrays::aSpecThermCap},
        {u"SpecElecRes", &SourceArrays::aSpecElecRes},
    };
    for (const auto &[name, array] : arrays)
        if (key == QStringView(name)) return this->*array;
    throw RuntimeError(9);
}
