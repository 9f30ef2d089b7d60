// What both pick windows have: a list over a data source, moving and finding in it, and the choice.
#pragma once

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

#include "platform/forms/control_array.h"
#include "platform/forms/data_control.h"
#include "platform/forms/form.h"

/// Hands what was chosen to modDBase::SetSelectedValue before it unloads; an empty text is no choice.
class PickWindow : public Form {
    Q_OBJECT
public:
    DataControl *dtaSelect;
    /// 0 moving, 1 finding, 2 the choice.
    ControlArray<QGroupBox> framSelect{"framSelect"};
    ControlArray<QPushButton> cmdSelNav{"cmdSelNav"};
    QLineEdit *txtSearch;
    ControlArray<QPushButton> cmdFind{"cmdFind"};
    QPushButton *cmdSelect;
    QPushButton *cmdCancel;

protected:
    /// The size in twips is that of the area inside the window's frame.
    PickWindow(const QString &name, int width, int height);

    /// The list takes all the growth of the window.
    virtual QWidget *list() const = 0;
    virtual QString chosenText() const = 0;
    /// Where the find text is looked for.
    virtual QString searchedField() const = 0;
    /// After the recordset was moved by a button or a find.
    virtual void moved() {}
    /// `direction` is 0 first, 1 previous, 2 next, 3 last.
    virtual void find(int direction, const QString &criterion);

    void choose(const QString &text);
    void Form_Load() override;
    void Form_Resize() override;
    void Form_QueryUnload(bool &cancel, UnloadMode mode) override;

private:
    void makeFrames();
    void makeFindFrame(QGroupBox *frame);
    void makeChoiceFrame(QGroupBox *frame, int width);
    void findTyped();
    void findByButton(int direction);
    void setFindTips(const QString &suffix);

    int dblWidth0 = 0;
    int dblHeight0 = 0;
    QRect m_listAtLoad;
    QMap<int, QPoint> m_framesAtLoad;
};
