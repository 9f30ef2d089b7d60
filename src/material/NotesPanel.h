// The panel below a table: its notes, and on a page of their own the additional information.
#pragma once

#include <QRect>
#include <QString>

struct LoadedTable;
struct MaterialControls;

class NotesPanel {
public:
    explicit NotesPanel(MaterialControls &controls);

    /// Where box and frame stand now is their designed place.
    void StorePlace();
    /// Closed, empty and in its designed place, with no call for attention.
    void Reset();
    /// Takes the page, for a running text.
    void ShowAsPage();

    void LoadNotes(const LoadedTable &table);
    /// In front of the notes.
    void AddOtherElements(const QString &text);

    void setText(const QString &text);

    /// The split between table and notes. "show" opens the notes, any other word closes them.
    void SizeForNotes(const QString &state);
    /// A click on the button, and a tick of the timer.
    void Toggle();
    void Flash();

private:
    void setButtonPicture(int index);
    void showCaption(const QString &caption);

    MaterialControls &m_controls;
    struct {
        QRect text;
        QRect frame;
    } mNotesPlace;
    QString m_text;
    int m_picture = 0;
    /// The table on show has notes or other elements.
    bool mHasNotes = false;
};
