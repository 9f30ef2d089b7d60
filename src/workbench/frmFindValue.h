// Find by Value.
#pragma once

#include <memory>

#include "workbench/FindControls.h"
#include "workbench/found_grades.h"
#include "workbench/WorkbenchWindow.h"

class FoundGrid;
struct ConditionTexts;

/// Each key asks anew. What was typed becomes a question here, the list is FoundGrid's, the diagram
/// PropertyPlot's, and the selecting the search window's.
class frmFindValue : public WorkbenchWindow, public FindControls {
    Q_OBJECT
public:
    frmFindValue();
    ~frmFindValue() override;

    /// The tips of this window, or none.
    Q_INVOKABLE void SetToolTips(bool showTips);

protected:
    void Form_Load() override;
    void selectionChanged() override;
    void restore(const QSettings &settings) override;
    void keep(QSettings &settings) const override;

private:
    void connectControls();
    void connectCommands();
    void addCondition();
    void removeCondition(int index);
    ConditionTexts textsOf(int condition) const;
    void setTexts(int condition, int property, const ConditionTexts &texts);

    /// What is typed has changed: asks and shows.
    void refresh();
    void readNow();
    /// Nothing where a condition cannot be read; beside it stands why.
    std::optional<ValueQuery> query();
    QVector<Property> wantedProperties(const std::optional<ValueQuery> &query) const;
    bool readTables(const std::optional<ValueQuery> &query);
    void showFound(bool isQuery);
    void showCounts(bool isQuery);
    void showPlot(bool isRead);
    bool showsPlot() const;

    void select(int grade);
    TakenTable table();
    void copyAll();
    void saveAll();

    std::shared_ptr<ValueSearch> m_search;
    QVector<Property> m_properties;
    std::unique_ptr<FoundGrid> m_grid;
    std::shared_ptr<const FoundGrades> m_found;
    int m_conditions = 1;
    /// The user wants no table read until he says so.
    bool m_stopped = false;
};
