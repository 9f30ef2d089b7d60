#include "platform/forms/grid_view.h"

#include <algorithm>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStringList>

#include "platform/forms/announcement.h"
#include "platform/forms/drop_target.h"
#include "platform/forms/grid_model.h"
#include "platform/forms/grid_row_selector.h"

namespace {

/// Spreadsheets take a quoted text as one cell, whatever is in it.
QString clipboardCell(const QString &text) {
    static const QString special = QStringLiteral("\t\n\r\"");
    const bool quoted = std::any_of(text.begin(), text.end(), [](QChar c) { return special.contains(c); });
    if (!quoted) return text;
    return QLatin1Char('"') + QString(text).replace(QLatin1Char('"'), QLatin1String("\"\"")) +
           QLatin1Char('"');
}

constexpr int WidestDragPicture = 320;
constexpr int CellPadding = 2;

} // namespace

GridView::GridView(GridModel &model, QWidget *parent)
    : QTableView(parent)
    , m_model(model) {
    setModel(&model);
    setVerticalHeader(new GridRowSelector(this));
    setFrameShape(QFrame::NoFrame);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    connect(addCommand(QStringLiteral("Copy"), tr("&Copy"), QKeySequence::Copy), &QAction::triggered, this,
            [this] { copySelection(CopyHeadings::No); });
    connect(addCommand(QStringLiteral("CopyWithHeadings"), tr("Copy with &Headings"),
                       QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C)),
            &QAction::triggered, this, [this] { copySelection(CopyHeadings::Yes); });
    connect(addCommand(QStringLiteral("SelectAll"), tr("Select &All"), QKeySequence::SelectAll),
            &QAction::triggered, this, &GridView::selectAll);
    m_saveCommand = addCommand(QStringLiteral("SaveTable"), tr("&Save Table As..."),
                               QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    removeAction(m_saveCommand);
    connect(m_saveCommand, &QAction::triggered, this, [this] {
        if (const auto save = m_save) save(); // a copy: saving may set another one
    });
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void GridView::setSaver(std::function<void()> save) {
    m_save = std::move(save);
    if (m_save)
        addAction(m_saveCommand);
    else
        removeAction(m_saveCommand);
}

bool GridView::severalCellsSelected() const {
    const QItemSelection selection = selectionModel()->selection();
    return selection.size() > 1 ||
           (selection.size() == 1 && (selection.first().height() > 1 || selection.first().width() > 1));
}

int GridView::firstVisibleColumn() const {
    for (int i = 0; i < m_model.columnCount(); ++i)
        if (!isColumnHidden(i)) return i;
    return 0;
}

void GridView::columnsChanged() {
    m_rowsGrow = m_model.rowsGrow() || anyColumnWraps();
    m_heightsStale = true;
    scheduleDelayedItemsLayout();
}

void GridView::fitRows() {
    if (m_rowsGrow && m_heightsStale) executeDelayedItemsLayout();
}

void GridView::doItemsLayout() {
    if (std::exchange(m_heightsStale, false)) forgetRowHeights();
    fitVisibleRows();
    QTableView::doItemsLayout();
}

QString GridView::selectedText(CopyHeadings headings) const {
    std::set<int> rows;
    std::set<int> columns;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.insert(row);
        for (int column = range.left(); column <= range.right(); ++column)
            if (!isColumnHidden(column)) columns.insert(column);
    }
    QStringList lines;
    const bool captionRows = headings == CopyHeadings::Yes && m_model.hasCaptionRows();
    if (captionRows)
        columns.insert(firstVisibleColumn());
    else if (headings == CopyHeadings::Yes)
        lines << columnHeadings(columns);
    int captions = -1;
    for (const int row : rows) {
        const int own = captionRows ? m_model.captionRowOf(row) : -1;
        if (own != captions && own != row) lines << rowText(own, columns, nullptr);
        captions = own;
        lines << rowText(row, columns, own == row ? nullptr : &selection);
    }
    return lines.join(QLatin1Char('\n'));
}

QString GridView::columnHeadings(const std::set<int> &columns) const {
    QStringList cells;
    for (const int column : columns)
        cells << clipboardCell(onOneLine(m_model.column(column).Caption()));
    return cells.join(QLatin1Char('\t'));
}

/// With a selection, of the cells outside it only their places. Without one it is a row of captions, each on
/// one line.
QString GridView::rowText(int row, const std::set<int> &columns, const QItemSelection *selection) const {
    QStringList cells;
    for (const int column : columns) {
        const QModelIndex index = m_model.index(row, column);
        const QString text = index.data().toString();
        if (selection == nullptr)
            cells << clipboardCell(onOneLine(text));
        else
            cells << (selection->contains(index) ? clipboardCell(text) : QString());
    }
    return cells.join(QLatin1Char('\t'));
}

void GridView::copySelection(CopyHeadings headings) const {
    if (selectionModel()->hasSelection()) QApplication::clipboard()->setText(selectedText(headings));
}

QAction *GridView::addCommand(const QString &name, const QString &text, const QKeySequence &keys) {
    auto *command = new QAction(text, this);
    command->setObjectName(name);
    command->setShortcut(keys);
    command->setShortcutContext(Qt::WidgetShortcut);
    addAction(command);
    return command;
}

void GridView::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT enterPressed();
        return;
    }
    const bool upOrDown = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (upOrDown && event->modifiers().testFlag(Qt::AltModifier)) {
        if (!currentIndex().isValid()) return;
        const int column = currentIndex().column();
        if (event->key() == Qt::Key_Up)
            Q_EMIT headingKeyPressed(column);
        else
            Q_EMIT footingKeyPressed(column);
        return;
    }
    QTableView::keyPressEvent(event);
}

void GridView::mousePressEvent(QMouseEvent *event) {
    m_pressed = event->button() == Qt::LeftButton ? indexAt(event->pos()) : QModelIndex();
    m_pressedAt = event->pos();
    QTableView::mousePressEvent(event);
}

void GridView::mouseMoveEvent(QMouseEvent *event) {
    if (!m_dragSource || !(event->buttons() & Qt::LeftButton)) {
        QTableView::mouseMoveEvent(event);
        return;
    }
    const bool farEnough =
        (event->pos() - m_pressedAt).manhattanLength() >= QApplication::startDragDistance();
    if (m_pressed.isValid() && farEnough) startCellDrag();
}

void GridView::mouseDoubleClickEvent(QMouseEvent *event) {
    QTableView::mouseDoubleClickEvent(event);
    // The base class tells of it only when the first click has left the rows as they were.
    if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) Q_EMIT rowDoubleClicked();
}

void GridView::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
    // QTableView adds nothing but to tell a screen reader that the keyboard has come to the cell, also where
    // a search in a box far from here has moved the row.
    if (hasFocus())
        QTableView::currentChanged(current, previous);
    else
        QAbstractItemView::currentChanged(current, previous);
    viewport()->update(); // the mark of the current row spans cells that the base class leaves alone
    if (current.isValid() && current.row() != previous.row()) Q_EMIT currentRowChanged(current);
}

void GridView::focusInEvent(QFocusEvent *event) {
    QTableView::focusInEvent(event);
    tellFocusLater(*this); // the library tells of the table as a whole
}

void GridView::resizeEvent(QResizeEvent *event) {
    QTableView::resizeEvent(event);
    if (m_rowsGrow) scheduleDelayedItemsLayout();
}

void GridView::verticalScrollbarValueChanged(int value) {
    QTableView::verticalScrollbarValueChanged(value);
    fitVisibleRows();
}

/// Without a row no cell can show that the keyboard is here.
void GridView::paintEvent(QPaintEvent *event) {
    QTableView::paintEvent(event);
    if (!hasFocus() || m_model.rowCount() > 0) return;
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
    painter.drawRect(viewport()->rect().adjusted(1, 1, -2, -2));
}

void GridView::startCellDrag() {
    const QModelIndex index = m_pressed;
    m_pressed = QPersistentModelIndex();
    setCurrentIndex(index);
    const QRect row(0, rowViewportPosition(index.row()), qMin(viewport()->width(), WidestDragPicture),
                    rowHeight(index.row()));
    dragControl(m_dragSource, viewport()->grab(row));
    setState(QAbstractItemView::NoState);
}

bool GridView::anyColumnWraps() const {
    for (int i = 0; i < m_model.columnCount(); ++i)
        if (m_model.column(i).WordWrap() && !isColumnHidden(i)) return true;
    return false;
}

/// Only rows that come into view are measured, so that a long list is not read for its heights.
void GridView::fitVisibleRows() {
    if (!m_rowsGrow) return;
    m_fitted.resize(static_cast<std::size_t>(m_model.rowCount()), false);
    for (int row = qMax(rowAt(0), 0); row < m_model.rowCount(); ++row) {
        if (rowViewportPosition(row) >= viewport()->height()) break;
        const auto at = static_cast<std::size_t>(row);
        if (m_fitted[at]) continue;
        m_fitted[at] = true;
        setRowHeight(row, neededHeight(row));
    }
}

int GridView::neededHeight(int row) const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    int height = verticalHeader()->defaultSectionSize();
    for (int column = 0; column < m_model.columnCount(); ++column) {
        const QModelIndex index = m_model.index(row, column);
        if (isColumnHidden(column) || index.data().toString().isEmpty()) continue;
        option.rect = QRect(0, 0, columnWidth(column) - 1, height);
        height =
            qMax(height, itemDelegateForIndex(index)->sizeHint(option, index).height() + 2 * CellPadding);
    }
    return height;
}

void GridView::forgetRowHeights() {
    for (std::size_t row = 0; row < m_fitted.size() && static_cast<int>(row) < m_model.rowCount(); ++row)
        if (m_fitted[row]) setRowHeight(static_cast<int>(row), verticalHeader()->defaultSectionSize());
    m_fitted.clear();
}
