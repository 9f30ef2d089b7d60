// The panel below a table: its notes, and on a page of their own the additional information.
#pragma once

#include <QRect>
#include <QString>

class DataControl;
class Material;
struct MaterialControls;

class NotesPanel {
public:
    NotesPanel(MaterialControls &controls, DataControl &dtaNotes, DataControl &dtaTableNotes);

    /// The table on show has notes or other elements; the markers in headings follow it.
    bool mHasNotes() const { return m_hasNotes; }

    /// Where box and frame stand now is their designed place.
    void StorePlace();
    /// Closed, empty and in its designed place, with no call for attention.
    void Reset();
    /// Takes the page, for a running text.
    void ShowAsPage();

    void LoadNotes(Material &material, const QString &key);
    /// In front of the notes.
    void AddOtherElements(const QString &text);

    const QString &Text() const { return m_text; }
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
    DataControl &m_dtaNotes;
    DataControl &m_dtaTableNotes;
    struct {
        QRect text;
        QRect frame;
    } mNotesPlace;
    QString m_text;
    int m_picture = 0;
    bool m_hasNotes = false;
};
