// The materials that the user has selected: in and out of the list, and opened all at once.
#pragma once

#include <QObject>
#include <QString>

class Recordset;
class frmSearch;

/// The list itself is mdiVelmar's colMaterials; the grid only shows it, by a query.
class SelectedList : public QObject {
    Q_OBJECT
public:
    explicit SelectedList(frmSearch &window);

    /// The current row of tdbMaterials. All ways of adding within the window end here; warnings and refusals
    /// are told by boxes.
    void add();
    /// A grade found elsewhere, by its identity, with the same refusals. One that is not there is none.
    void addGrade(qint16 id);
    /// The same where the list of found materials holds rows.
    void addFromList();
    /// The current row of tdbSelected.
    void remove();
    void clear();

    void refresh(const QString &order);
    void show();
    /// In one document, by windows that stay invisible.
    void printAll();

private:
    bool batchOffered() const;
    /// Whether there is room, and the grade of the current row is not in the list. Tells the user where not.
    bool mayAdd(const Recordset &found) const;
    void take(const Recordset &found, const Recordset &standard);
    /// Each in a window, in the place of the search.
    void OpenSelectedMaterials();
    void fillBin();
    void showCount();
    void openWindows();
    void showMaterialCommands();

    frmSearch &m_search;
};
