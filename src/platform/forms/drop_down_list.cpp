#include "platform/forms/drop_down_list.h"

DropDownList::DropDownList(QWidget *parent)
    : QComboBox(parent) {
    connect(this, &QComboBox::currentIndexChanged, this, &DropDownList::changed);
    connect(this, &QComboBox::activated, this, &DropDownList::activated);
}

void DropDownList::showPopup() {
    m_indexAtPopup = currentIndex();
    QComboBox::showPopup();
}

void DropDownList::changed() {
    m_indexAtPopup = -1;
    Q_EMIT Click();
}

/// Follows changed() where the user has taken another item.
void DropDownList::activated(int index) {
    if (index != m_indexAtPopup) return;
    m_indexAtPopup = -1;
    Q_EMIT Click();
}
