// A grade's properties for a finite element program, whichever that is: what is in the card, and what is not.
#pragma once

#include <optional>

#include <QStringList>
#include <QVector>

#include "exchange/card_source.h"
#include "exchange/card_units.h"
#include "exchange/cell_number.h"

/// What a user chooses and types.
struct CardChoice {
    UnitSystem units = UnitSystem::Si;
    /// As typed; empty without one. What is faulty counts as not given.
    QString poisson = {};
    /// In kg/m³.
    QString density = {};
    /// "Rp02" or "Rp10"; empty without a yield stress.
    QString yieldKey = {};
    /// From 1; 0 for a table without thickness bands.
    int band = 0;
};

struct CardRow {
    /// In °C.
    CellNumber temperature;
    /// In the unit of the database.
    CellNumber value;
};

struct MaterialCard {
    /// Letters, digits, "_" and "-", at most 80 of them.
    QString name;
    /// What it was made from, what was left out and why: lines of any length, without comment marks.
    QStringList head;
    UnitSystem units = UnitSystem::Si;
    std::optional<CellNumber> poisson;
    /// In kg/m³.
    std::optional<CellNumber> density;
    /// The rows of the standard, temperatures ascending; none for a block that is left out. Mean expansion is
    /// from 20 °C, heat capacity the differential one, and the yield stress goes with elasticity alone.
    QVector<CardRow> elasticity;
    QVector<CardRow> expansion;
    QVector<CardRow> conductivity;
    QVector<CardRow> specificHeat;
    QVector<CardRow> yield;
    /// Of the head: a line a block that is not there, with the reason.
    QStringList leftOut;

    static MaterialCard of(const CardSource &source, const CardChoice &choice);

    /// What is wrong with a typed text, for the user; empty for a good one, and for an empty one.
    static QString poissonFault(const QString &typed);
    static QString densityFault(const QString &typed);
};

/// A figure in the card's unit, all its digits and no other: at most 20 characters, with "E" where it is
/// shorter so.
QString cardNumber(const CellNumber &number, int exponent);
