// The grid of the grades found by value: its columns, its order, its marks.
#pragma once

#include <memory>
#include <optional>

#include <QObject>
#include <QSet>

#include "workbench/found_grades.h"

class TDBGrid;

class FoundGrid : public QObject {
    Q_OBJECT
public:
    explicit FoundGrid(TDBGrid &grid);

    /// At once, in the order that the user chose: best first until he does. The columns follow the question.
    void show(const std::shared_ptr<const ValueSearch> &search,
              const std::shared_ptr<const FoundGrades> &found);
    /// The grades that stand out as selected already.
    void setSelected(const QSet<qint16> &selected);

    /// The place in the list of grades of the current row's; -1 without a row.
    int currentGrade() const;
    /// The places in the answer, as the rows show them.
    const std::vector<int> &places() const { return *m_places; }

private:
    void orderBy(int column);
    void showColumns();
    void showHeadings();
    QString caption(int column) const;
    Qt::SortOrder order() const;
    void showRows();

    TDBGrid &m_grid;
    std::shared_ptr<const ValueSearch> m_search;
    std::shared_ptr<const FoundGrades> m_found;
    std::unique_ptr<FoundOrder> m_order;
    std::shared_ptr<const std::vector<int>> m_places;
    QVector<FoundColumn> m_columns;
    /// None is best first, as the answer is.
    std::optional<FoundColumn> m_by;
    bool m_reversed = false;
    QSet<qint16> m_selected;
};
