// The materials that the user has selected: in and out of the list, and opened all at once.
#pragma once

#include <QObject>
#include <QString>

class frmSearch;

/// The list itself is mdiVelmar's colMaterials; the grid only shows it, by a query.
class SelectedList : public QObject {
    Q_OBJECT
public:
    explicit SelectedList(frmSearch &window);

    /// The current row of tdbMaterials. All ways of adding end here; warnings and refusals are told by boxes.
    void add();
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
    bool mayAdd() const;
    /// Each in a window, in the place of the search.
    void OpenSelectedMaterials();
    /// Whether the current row's standard is known. Tells the user where it is not.
    bool hasStandard() const;
    void fillBin();
    void showCount();
    void openWindows();
    void showMaterialCommands();

    frmSearch &m_search;
};
