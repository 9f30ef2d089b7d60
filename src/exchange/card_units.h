// The units of material cards, and how the database's figures become theirs.
#pragma once

#include <array>

/// Coherent systems, with temperatures in °C: kg, m, s, Pa, and t, mm, s, MPa.
enum class UnitSystem { Si, Mm };

enum class CardQuantity { Elasticity, Expansion, Conductivity, SpecificHeat, Density, Yield };

struct CardUnit {
    CardQuantity quantity;
    const char *label;
    /// What the figures of the database are in; the density is typed.
    const char *database;
    /// The powers of ten that a figure of the database is multiplied by. All factors are such.
    int toSi;
    int toMm;
    const char *si;
    const char *mm;

    constexpr int exponent(UnitSystem system) const { return system == UnitSystem::Si ? toSi : toMm; }
    constexpr const char *unit(UnitSystem system) const { return system == UnitSystem::Si ? si : mm; }
};

/// Of the SI (Bureau international des poids et mesures, The International System of Units, 9th edition):
/// 1 N = 1 kg m/s², 1 Pa = 1 N/m², 1 J = 1 N m, 1 W = 1 J/s. With 1 t = 10³ kg and 1 m = 10³ mm:
///
///     1 MPa      = 1 N/mm²  = 1 t/(mm s²)           so that t, mm and s are coherent with MPa
///     1 kN/mm²   = 10⁹ Pa   = 10³ MPa
///     1 W/(m K)  = 1 kg m/(s³ K) = 10⁻³ · 10³ t mm/(s³ K)
///     1 J/(kg K) = 1 m²/(s² K)   = 10⁶ mm²/(s² K)
///     1 kg/m³    = 10⁻³ · 10⁻⁹ t/mm³
constexpr std::array<CardUnit, 6> CardUnits{{
    {CardQuantity::Elasticity, "Modulus of elasticity", "kN/mm2", 9, 3, "Pa", "MPa"},
    {CardQuantity::Expansion, "Mean thermal expansion from 20 C", "1E-6/K", -6, -6, "1/K", "1/K"},
    {CardQuantity::Conductivity, "Thermal conductivity", "W/(m K)", 0, 0, "W/(m K)", "t mm/(s3 K)"},
    {CardQuantity::SpecificHeat, "Specific heat", "J/(kg K)", 0, 6, "J/(kg K)", "mm2/(s2 K)"},
    {CardQuantity::Density, "Density", "kg/m3", 0, -12, "kg/m3", "t/mm3"},
    {CardQuantity::Yield, "Yield stress", "MPa", 6, 0, "Pa", "MPa"},
}};

constexpr const CardUnit &cardUnit(CardQuantity quantity) {
    return CardUnits[static_cast<std::size_t>(quantity)];
}

constexpr bool areInOrder(const std::array<CardUnit, 6> &units) {
    for (std::size_t i = 0; i < units.size(); ++i)
        if (static_cast<std::size_t>(units[i].quantity) != i) return false;
    return true;
}
static_assert(areInOrder(CardUnits));
