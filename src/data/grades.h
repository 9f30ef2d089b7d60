// Finds grades, and makes a Material of one, without a window.
#pragma once

#include <array>
#include <memory>

#include <QDateTime>
#include <QString>
#include <QVector>

class Database;
class Material;

namespace Grades {

struct Grade {
    qint16 id = 0;
    QString name;
    QString number;
    QString standard;
    QString description;
    QString group;
    QDateTime revision;
};

/// What is searched for, as in the search window: contained in the text, capitals do not count, "*", "?" and
/// "#" are wildcards. An empty text is not searched for.
struct Criteria {
    QString standard;
    QString name;
    QString number;
    QString group;
    QString productForm;
    /// "EN", "SS" or "ASME": whose standards and names the first two are.
    QString system = QStringLiteral("EN");
};

/// By standard and name. Raises 3075 for a criterion with a single quote in it.
QVector<Grade> find(Database &database, const Criteria &criteria);

/// The grades that `text` names: by name, by number, by either with "@" and the standard behind it, or by "#"
/// and the identity. Capitals do not count.
QVector<Grade> named(Database &database, const QString &text);

Grade of(const Material &material);

/// Raises 3021 for an identity that no grade has, and for a grade whose standard is missing.
std::shared_ptr<Material> material(Database &database, qint16 id);

} // namespace Grades
