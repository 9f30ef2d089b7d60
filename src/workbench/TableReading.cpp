#include "workbench/TableReading.h"

#include <limits>

#include <QHBoxLayout>
#include <QScopedValueRollback>

#include "platform/forms/interruptible_work.h"
#include "platform/forms/placement.h"
#include "values/value_search.h"

TableReading::TableReading(QWidget *parent)
    : QWidget(parent)
    , lblReading(named(new QLabel(this), "lblReading"))
    , prgReading(named(new QProgressBar(this), "prgReading", "Reading"))
    , cmdReading(named(new QPushButton(this), "cmdReading")) {
    cmdReading->setAutoDefault(false);
    lblReading->setWordWrap(true);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(lblReading, 2);
    layout->addWidget(prgReading, 1);
    layout->addWidget(cmdReading);
    connect(cmdReading, &QPushButton::clicked, this, [this] {
        if (!m_reading) Q_EMIT wanted();
    });
}

bool TableReading::read(ValueSearch &search, const Property &property) {
    if (search.isRead(property.key)) return true;
    const QScopedValueRollback<bool> reading(m_reading, true);
    lblReading->setText("Reading the values of " + property.label + " of all grades...");
    cmdReading->setText("Ca&ncel");
    cmdReading->setAccessibleName("Cancel reading");
    prgReading->setRange(0, 0);
    prgReading->show();
    InterruptibleWork work(*window(), *cmdReading);
    const bool isRead = search.read(property.key, [&](qint64 rows, qint64 of) {
        // Of a bar that knows the end already each step is a step.
        prgReading->setRange(0, static_cast<int>(std::min<qint64>(of, std::numeric_limits<int>::max())));
        prgReading->setValue(static_cast<int>(std::min<qint64>(rows, prgReading->maximum())));
        return work.goOn();
    });
    if (!isRead) showStopped(property);
    return isRead;
}

void TableReading::showStopped(const Property &property) {
    lblReading->setText("The reading was stopped. The values of " + property.label + " are not there yet.");
    cmdReading->setText("Read &Now");
    cmdReading->setAccessibleName("Read now");
    prgReading->hide();
}
