// The grid of found materials: its columns, what is remembered of them, its ordering and its tips.
#pragma once

#include <optional>

#include <QObject>
#include <QString>

class DataControl;
class frmSearch;
class SearchCriteria;
enum class GridArea;

class ResultGrid : public QObject {
    Q_OBJECT
public:
    ResultGrid(frmSearch &window, SearchCriteria &criteria);

    /// The remembered widths and hidden columns; a width that is not known yet is remembered now.
    void applySavedLayout();

private:
    void connectGrids();
    void columnToggled(int index, bool shown);
    void foundResized(int column);
    void selectedResized(int column);
    void orderBy(int column, const QString &direction);
    std::optional<QString> cellTip(GridArea area, int column) const;
    void navigate(int index);
    void followStandard();

    frmSearch &m_search;
    SearchCriteria &m_criteria;
};
