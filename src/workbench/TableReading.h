// How far a table of all grades is read, with the button that stops it.
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>

#include "values/property.h"

class ValueSearch;

class TableReading : public QWidget {
    Q_OBJECT
public:
    explicit TableReading(QWidget *parent = nullptr);

    QLabel *lblReading;
    QProgressBar *prgReading;
    /// Stops the reading, or begins it again.
    QPushButton *cmdReading;

    bool isReading() const { return m_reading; }
    /// Reads a property's table once; the window goes on painting. False where the user stopped it: that is
    /// told until the next reading. Raises what the database raises.
    bool read(ValueSearch &search, const Property &property);

Q_SIGNALS:
    /// The user wants what he stopped.
    void wanted();

private:
    void showStopped(const Property &property);

    bool m_reading = false;
};
