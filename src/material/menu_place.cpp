#include "material/menu_place.h"

#include <QHash>

MenuPlace menuPlaceOf(const QString &key) {
    static const QHash<QString, MenuPlace> places = {
        {"ChemComp", {"View", 1}},     {"ImpEnergy", {"View", 3}},   {"AddInfo", {"View", 5}},
        {"Design", {"View", 6}},       {"MechProp", {"Mech", 0}},    {"Rp02", {"Mech", 1}},
        {"Rp10", {"Mech", 1}},         {"Rm", {"Mech", 1}},          {"CreepProp", {"Mech", 3}},
        {"ModElast", {"Phys", 0}},     {"ThermExp", {"Phys", 1}},    {"ThermCond", {"Phys", 2}},
        {"SpecThermCap", {"Phys", 3}}, {"SpecElecRes", {"Phys", 4}},
    };
    return places.value(key, {"View", 0});
}
