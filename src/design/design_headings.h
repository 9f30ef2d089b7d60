// What stands over the values of each table of the design values: its label and the captions of its columns.
#pragma once

#include <QStringList>
#include <QVector>

struct DesignHeadings {
    QString label;
    /// Element 0 belongs to column 1.
    QStringList columns;
};

/// `aThickness` holds the upper limits of the bands in mm, the first at index 1, and no element for a table
/// without bands. `aCreepCaptions` holds those of the creep columns from 0, the temperature's.
DesignHeadings designHeadings(const QString &key, const QVector<qint16> &aThickness,
                              const QStringList &aCreepCaptions);
