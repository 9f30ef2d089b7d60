// What a window of the tools shows: its content, or how to come by grades where none is selected.
#pragma once

#include <QStackedWidget>

class QLabel;

class SelectionPages : public QStackedWidget {
    Q_OBJECT
public:
    /// `purpose` ends the sentence "Select the grades ...".
    SelectionPages(const QString &purpose, QWidget *content, QWidget *parent);

    void showContent(bool anySelected);

    QLabel *lblNoGrade;
};
