#include "workbench/SelectionPages.h"

#include <QLabel>

#include "platform/forms/placement.h"

SelectionPages::SelectionPages(const QString &purpose, QWidget *content, QWidget *parent)
    : QStackedWidget(parent)
    , lblNoGrade(named(new QLabel(this), "lblNoGrade")) {
    lblNoGrade->setText("No grade is selected.\n\nSelect the grades " + purpose +
                        ": search for them in the main window, and press Enter on each in the list there. "
                        "Find by Value (Ctrl+F) adds to them, too.");
    lblNoGrade->setAlignment(Qt::AlignCenter);
    lblNoGrade->setWordWrap(true);
    lblNoGrade->setMargin(24);
    lblNoGrade->setFocusPolicy(Qt::TabFocus); // so that a screen reader reads it
    addWidget(content);
    addWidget(lblNoGrade);
}

void SelectionPages::showContent(bool anySelected) {
    setCurrentIndex(anySelected ? 0 : 1);
}
