// The window in which materials are found and selected.
#pragma once

#include <memory>

#include <QDateTime>

#include "data/search_statements.h"
#include "platform/forms/form.h"
#include "search/SearchControls.h"

class ResultGrid;
class SearchCriteria;
class SelectedList;

/// One instance, from the database's opening to the end of the run; the user only ever hides it. What is
/// typed becomes statements in SearchCriteria, the list of what was found is ResultGrid's and that of the
/// selected materials SelectedList's.
class frmSearch : public Form, public SearchControls {
    Q_OBJECT
public:
    frmSearch();
    ~frmSearch() override;

    /// The tips of this window, or none.
    Q_INVOKABLE void SetToolTips(bool showTips);
    /// Into SavedSearch of the main window.
    void keepCriteria() const;
    /// Runs the main query. `orderBy` is what follows " order by ".
    void SearchMaterials(const QString &orderBy);
    /// Shows the selected materials in that order, a field's name; empty is "standard, name".
    void RefreshSelected(const QString &order);
    /// Adds a grade that was found elsewhere to the selected materials, as the user would add it here: with
    /// the same refusals, which boxes tell.
    void SelectGrade(qint16 id);
    /// Opens the selected materials, each in a window, in the place of this one. Without any nothing happens.
    void ShowSelections();

    /// The newest revision of a standard; invalid where there is no standard.
    QDateTime mLatestRevision;
    /// Fields and captions in the order of the columns of tdbMaterials.
    SearchStatements::SearchFields mSearchFields;
    /// What cmbChooseStd lists.
    QStringList mStandardKinds;

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_QueryUnload(bool &cancel, UnloadMode mode) override;
    void Form_Unload(bool &cancel) override;

private:
    void connectControls();
    void readLatestRevision();
    void fitSize();
    void restoreCriteria();

    std::unique_ptr<SearchCriteria> m_criteria;
    std::unique_ptr<ResultGrid> m_results;
    std::unique_ptr<SelectedList> m_selected;
};
