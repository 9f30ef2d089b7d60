// What the search window asks the database: its criteria in, statements out.
#pragma once

#include <array>
#include <optional>

#include <QString>
#include <QStringList>

namespace SearchStatements {

struct SearchField {
    QString field;
    QString caption;
};

/// Indexed as the grid's columns; 0 to 6 are also the search boxes.
using SearchFields = std::array<SearchField, 10>;

/// The fields as they are before any standards system was chosen.
SearchFields initialFields();
/// "EN", "SS", "ASME": the standards systems in the order of their list.
const QStringList &standardKinds();
/// Makes boxes 0 and 1 search the columns of that system. "SS" leaves box 0 on the column it had; any other
/// text changes nothing.
void applyStandardKind(SearchFields &fields, const QString &kind);

struct Criteria {
    std::array<QString, 7> boxes;
    QString standardKind;
    SearchFields fields = initialFields();
};

struct MainQuery {
    QString sql;
    /// The conditions of boxes 0 to 5 from their " where " on; empty without one. The list buttons build on
    /// it.
    QString mWhereClause;
};

/// What the list is ordered by until a heading is clicked.
inline const QString DefaultOrder = QStringLiteral("standard,name");

/// `orderBy` is what follows " order by ".
MainQuery mainQuery(const Criteria &criteria, const QString &orderBy);

/// A "*" behind each character.
QString spread(const QString &text);
/// What the list of standards is set to for a moment before each main query.
QString standardsStatement(const Criteria &criteria);

/// What a list button opens.
struct ListQuery {
    QString sql;
    /// The pick window is that of standards; then field and title are empty.
    bool picksStandard = false;
    QString field;
    QString title;
};

/// `box` is 0 to 6, `whereClause` that of the last main query. Raises 9 for any other box.
ListQuery listQuery(int box, const Criteria &criteria, const QString &whereClause);

/// What becomes of a character typed into `box`; nothing where it is refused. Pasted texts do not pass here.
std::optional<QChar> typedCharacter(int box, QChar typed);

} // namespace SearchStatements
