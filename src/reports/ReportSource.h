// What a report is made from beside the material itself: the material's window, as reports see it.
#pragma once

#include <memory>

#include <QString>
#include <QVector>

class Material;
class MSChart;
class XArrayDB;

/// What a report holds.
enum class ReportKind : qint16 { Tables = 0, Graph = 1, DesignValues = 2 };

class ReportSource {
public:
    virtual ~ReportSource() = default;

    /// Of the next report.
    virtual ReportKind reportKind() const = 0;
    virtual void setReportKind(ReportKind kind) = 0;

    /// As DesignValues::xDesignDB, and the temperature in °C that they stand for.
    virtual std::shared_ptr<XArrayDB> designValues() const = 0;
    virtual QString designTemperature() const = 0;
    /// For each creep column as loaded: hidden for having no value.
    virtual QVector<bool> EmptyCreepCols() const = 0;
    virtual const MSChart &chart() const = 0;
    /// The table on show.
    virtual QString currentTable() const = 0;

    /// The source of a material that is open. Raises 91 for any other.
    static ReportSource &of(const Material &material);
};
