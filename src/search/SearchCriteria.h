// The criteria of the search window: boxes, standards system and list buttons, and what they ask for.
#pragma once

#include <QObject>
#include <QString>

#include "data/search_statements.h"

class frmSearch;

/// Every change of a box runs the main query at once. A box that is written runs its change handler, which
/// may tick or untick chkListAll, whose handler may write boxes: they enter one another in one user action,
/// and the order of their statements alone decides what comes of it.
class SearchCriteria : public QObject {
    Q_OBJECT
public:
    explicit SearchCriteria(frmSearch &window);

    void SearchMaterials(const QString &orderBy);
    /// What the present item of cmbChooseStd means for boxes, fields and columns. Clears all criteria.
    void chooseStandard();
    void showCount();

Q_SIGNALS:
    /// In one of the boxes.
    void EnterPressed();

private:
    void sayOrder(const QString &orderBy);
    void boxChanged();
    bool anyBoxFilled() const;
    void clearBoxes();
    void listAllClicked();
    void exposeBatch();
    void applyKind();
    void openList(int box);
    void keyTyped(int box, int &keyAscii);
    SearchStatements::Criteria criteria() const;

    frmSearch &m_search;
    /// The item of cmbChooseStd last chosen.
    QString mStandardKind;
    /// The conditions of boxes 0 to 5 in the last main query.
    QString mWhereClause;
};
