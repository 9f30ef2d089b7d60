#include "workbench/SheetColumns.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include "exchange/value_tables.h"
#include "platform/forms/placement.h"

namespace {

/// On a dark ground the style draws the edge of an empty box as dark as the ground.
void makeBoxesVisible(QListWidget &list) {
    QPalette palette = list.palette();
    if (palette.color(QPalette::Base).lightness() >= 128) return;
    palette.setColor(QPalette::Window, palette.color(QPalette::Text));
    list.setPalette(palette);
}

} // namespace

SheetColumns::SheetColumns(QWidget *parent)
    : QWidget(parent)
    , lstColumns(named(new QListWidget(this), "lstColumns", "Columns of the sheet"))
    , cmdAll(named(new QPushButton("&All", this), "cmdAll", "All columns"))
    , cmdNone(named(new QPushButton("&None", this), "cmdNone", "No column")) {
    auto *lblColumns = new QLabel("Co&lumns", this);
    lblColumns->setBuddy(lstColumns);
    makeBoxesVisible(*lstColumns);
    lstColumns->setTextElideMode(Qt::ElideMiddle);
    lstColumns->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(cmdAll);
    buttons->addWidget(cmdNone);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(lblColumns);
    layout->addWidget(lstColumns, 1);
    layout->addLayout(buttons);
    connect(lstColumns, &QListWidget::itemChanged, this, [this] {
        remember();
        Q_EMIT chosenChanged();
    });
    connect(cmdAll, &QPushButton::clicked, this, [this] { tickAll(true); });
    connect(cmdNone, &QPushButton::clicked, this, [this] { tickAll(false); });
}

void SheetColumns::offer(const QVector<ValueColumn> &columns) {
    const QSignalBlocker notTheUser(lstColumns);
    m_columns = columns;
    lstColumns->clear();
    for (const ValueColumn &column : columns) {
        const QString title = ValueTables::title(column);
        auto *item = new QListWidgetItem(title, lstColumns);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(m_leftOut.contains(title) ? Qt::Unchecked : Qt::Checked);
        item->setToolTip(title);
    }
    if (lstColumns->count() > 0) lstColumns->setCurrentRow(0);
}

QVector<ValueColumn> SheetColumns::chosen() const {
    QVector<ValueColumn> chosen;
    for (int i = 0; i < lstColumns->count(); ++i)
        if (lstColumns->item(i)->checkState() == Qt::Checked) chosen << m_columns[i];
    return chosen;
}

void SheetColumns::tickAll(bool on) {
    {
        const QSignalBlocker oneByOne(lstColumns);
        for (int i = 0; i < lstColumns->count(); ++i)
            lstColumns->item(i)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
    remember();
    Q_EMIT chosenChanged();
}

void SheetColumns::remember() {
    for (int i = 0; i < lstColumns->count(); ++i) {
        const QListWidgetItem &item = *lstColumns->item(i);
        if (item.checkState() == Qt::Checked)
            m_leftOut.remove(item.text());
        else
            m_leftOut.insert(item.text());
    }
}

QStringList SheetColumns::leftOut() const {
    QStringList titles(m_leftOut.begin(), m_leftOut.end());
    titles.sort();
    return titles;
}

void SheetColumns::setLeftOut(const QStringList &titles) {
    m_leftOut = QSet<QString>(titles.begin(), titles.end());
}
