// A list that drops down, of which one item is chosen.
#pragma once

#include <QComboBox>

class DropDownList : public QComboBox {
    Q_OBJECT
public:
    explicit DropDownList(QWidget *parent = nullptr);

    void showPopup() override;

Q_SIGNALS:
    /// Once for each choice: by the user, also of the item that was chosen already, and by the program when
    /// it sets another index.
    void Click();

private:
    void changed();
    void activated(int index);

    int m_indexAtPopup = -1;
};
