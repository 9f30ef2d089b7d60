#include "platform/forms/tdb_grid.h"

#include <cmath>

#include <QHelpEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolTip>
#include <QVBoxLayout>

#include "platform/dao/recordset.h"
#include "platform/forms/announcement.h"
#include "platform/forms/data_control.h"
#include "platform/forms/drop_target.h"
#include "platform/forms/grid_cells.h"
#include "platform/forms/grid_delegate.h"
#include "platform/forms/grid_footer.h"
#include "platform/forms/grid_header.h"
#include "platform/forms/grid_model.h"
#include "platform/forms/grid_view.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/twips.h"
#include "platform/runtime/x_array_db.h"

namespace {

constexpr int WidestColumn = 1'000'000; // pixels; a header takes hardly more

/// A width can come from a file, and be any number or none.
int pixelsOf(double twips) {
    return toPixels(static_cast<int>(std::lround(std::fmin(std::fmax(twips, 0), toTwips(WidestColumn)))));
}

} // namespace

TDBGrid::TDBGrid(QWidget *parent)
    : QFrame(parent)
    , m_caption(new QLabel(this))
    , m_model(new GridModel(this))
    , m_view(new GridView(*m_model, this))
    , m_delegate(new GridDelegate(*m_model, m_look, m_view))
    , m_header(new GridHeader(*m_model, m_view))
    , m_footer(new GridFooter(m_header, this))
    , m_scrollBar(new QScrollBar(Qt::Horizontal, this)) {
    m_view->setHorizontalHeader(m_header);
    m_view->setItemDelegate(m_delegate);
    layOut();
    connectView();
    setFocusProxy(m_view);
    connect(new DropTarget(this), &DropTarget::Dropped, this, &TDBGrid::Dropped);
}

TDBGrid::~TDBGrid() {
    // The view and its headings look into the model, and talk to this grid, to their end.
    for (QObject *part : {static_cast<QObject *>(m_view), static_cast<QObject *>(m_header),
                          static_cast<QObject *>(m_view->horizontalScrollBar())})
        part->disconnect(this);
    delete m_view;
}

QString TDBGrid::Caption() const {
    return m_caption->text();
}

void TDBGrid::setCaption(const QString &caption) {
    m_caption->setText(caption);
    m_caption->setVisible(!caption.isEmpty());
}

void TDBGrid::setDataSource(DataControl *source) {
    if (m_source) m_source->disconnect(this);
    m_source = source;
    if (!source) return;
    connect(source, &DataControl::recordsetReplaced, this, &TDBGrid::showRecordset);
    connect(source, &DataControl::Reposition, this, &TDBGrid::followRecordset);
    showRecordset();
}

DataControl *TDBGrid::DataSource() const {
    return m_source;
}

void TDBGrid::setArray(std::shared_ptr<XArrayDB> array) {
    setDataSource(nullptr);
    m_array = std::move(array);
}

void TDBGrid::setCells(std::shared_ptr<const GridCells> cells) {
    setDataSource(nullptr);
    m_array = nullptr;
    showRows(cells && cells->rows == RowCount(), [&] { m_model->showCells(std::move(cells)); });
}

void TDBGrid::Rebind() {
    if (m_source)
        showRecordset();
    else
        showArray();
}

void TDBGrid::Refresh() {
    Rebind();
}

void TDBGrid::HoldFields() {
    m_fieldsHeld = true;
}

GridColumn &TDBGrid::Columns(int index) {
    if (index < 0 || index >= ColumnCount()) throw RuntimeError(9);
    return m_model->column(index);
}

int TDBGrid::ColumnCount() const {
    return m_model->columnCount();
}

GridColumn &TDBGrid::AddColumn(const QString &caption) {
    m_fieldsHeld = true;
    GridColumn &column = m_model->addColumn();
    column.setCaption(caption);
    applyColumns(ColumnCount() - 1, ColumnCount() - 1);
    return column;
}

void TDBGrid::RemoveColumn(int index) {
    if (index < 0 || index >= ColumnCount()) throw RuntimeError(9);
    m_model->removeColumn(index);
    m_header->headingsChanged();
    m_view->columnsChanged();
}

QString TDBGrid::CellText(int row, int column) const {
    if (row < 0 || row >= RowCount() || column < 0 || column >= ColumnCount()) throw RuntimeError(9);
    return m_model->index(row, column).data().toString();
}

int TDBGrid::RowCount() const {
    return m_model->rowCount();
}

int TDBGrid::Row() const {
    return m_view->currentIndex().row();
}

void TDBGrid::setRow(int row) {
    if (row < 0 || row >= RowCount()) throw RuntimeError(9);
    selectRow(row);
}

void TDBGrid::ScrollToFirstColumn() {
    m_view->horizontalScrollBar()->setValue(m_view->horizontalScrollBar()->minimum());
}

void TDBGrid::setEvenRowStyle(const GridRowStyle &style) {
    m_look.evenRow = style;
    m_view->viewport()->update();
}

void TDBGrid::setOddRowStyle(const GridRowStyle &style) {
    m_look.oddRow = style;
    m_view->viewport()->update();
}

void TDBGrid::setAlternatingRowStyle(bool on) {
    m_look.alternating = on;
    m_view->viewport()->update();
}

void TDBGrid::setMarqueeStyle(MarqueeStyle style) {
    m_look.marquee = style;
    m_view->viewport()->update();
}

void TDBGrid::setRecordSelectors(bool shown) {
    m_view->verticalHeader()->setVisible(shown);
}

void TDBGrid::setColumnHeaders(bool shown) {
    m_header->setVisible(shown);
}

void TDBGrid::setColumnFooters(bool shown) {
    m_footer->setVisible(shown);
}

void TDBGrid::setCaptionRows(std::function<int(int row)> finder) {
    m_model->setCaptionRows(std::move(finder));
}

void TDBGrid::setRowOrder(int column, Qt::SortOrder order) {
    const QString before = column < 0 ? QString() : m_model->spokenHeading(column);
    m_model->setRowOrder(column, order);
    if (column < 0 || !m_view->hasFocus()) return;
    if (const QString heading = m_model->spokenHeading(column); heading != before) announce(*m_view, heading);
}

void TDBGrid::setSaver(std::function<void()> save) {
    m_view->setSaver(std::move(save));
}

void TDBGrid::setCellDrag(bool on) {
    m_view->setDragSource(on ? this : nullptr);
}

bool TDBGrid::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::ToolTip && watched->isWidgetType() &&
        showCellTip(*static_cast<QWidget *>(watched), *static_cast<QHelpEvent *>(event)))
        return true;
    return QFrame::eventFilter(watched, event);
}

void TDBGrid::showEvent(QShowEvent *event) {
    // A screen reader reads the view, which has the keyboard, and not this frame around it.
    const QString name = accessibleName().isEmpty() ? Caption() : accessibleName();
    m_view->setAccessibleName(name.isEmpty() ? objectName() : name);
    QFrame::showEvent(event);
}

void TDBGrid::layOut() {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    m_caption->setAlignment(Qt::AlignCenter);
    m_caption->setMargin(2);
    m_caption->setAutoFillBackground(true);
    m_caption->setBackgroundRole(QPalette::Button);
    m_caption->setForegroundRole(QPalette::ButtonText);
    m_caption->hide();
    m_footer->hide();
    m_scrollBar->hide();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_caption);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_footer);
    layout->addWidget(m_scrollBar);
}

void TDBGrid::connectView() {
    // A click on a heading is the program's; it does not select the column.
    disconnect(m_header, &QHeaderView::sectionPressed, m_view, nullptr);
    disconnect(m_header, &QHeaderView::sectionEntered, m_view, nullptr);
    connect(m_header, &QHeaderView::sectionClicked, this, &TDBGrid::HeadClick);
    connect(m_header, &QHeaderView::sectionResized, this,
            [this](int column, int, int pixels) { userResized(column, pixels); });
    connect(m_footer, &GridFooter::clicked, this, &TDBGrid::FootClick);
    connect(m_view, &GridView::headingKeyPressed, this, [this](int column) {
        if (!m_header->isHidden()) Q_EMIT HeadClick(column);
    });
    connect(m_view, &GridView::footingKeyPressed, this, [this](int column) {
        if (!m_footer->isHidden()) Q_EMIT FootClick(column);
    });
    connect(m_view, &GridView::rowDoubleClicked, this, &TDBGrid::DblClick);
    connect(m_view, &GridView::enterPressed, this, &TDBGrid::EnterPressed);
    connect(m_view, &GridView::currentRowChanged, this, &TDBGrid::moveRecordset);
    connect(m_model, &GridModel::columnChanged, this, [this](int index) { applyColumns(index, index); });

    QScrollBar *hidden = m_view->horizontalScrollBar();
    connect(hidden, &QScrollBar::rangeChanged, this, &TDBGrid::updateScrollBar);
    connect(hidden, &QScrollBar::valueChanged, m_scrollBar, &QScrollBar::setValue);
    connect(hidden, &QScrollBar::valueChanged, m_footer, qOverload<>(&QWidget::update));
    connect(m_scrollBar, &QScrollBar::valueChanged, hidden, &QScrollBar::setValue);

    for (QWidget *place : {m_header->viewport(), m_view->viewport(), static_cast<QWidget *>(m_footer)})
        place->installEventFilter(this);
}

void TDBGrid::applyColumns(int first, int last) {
    const QScopedValueRollback<bool> layingOut(m_layingOut, true);
    for (int i = first; i <= last; ++i) {
        const GridColumn &column = m_model->column(i);
        m_header->setSectionHidden(i, !column.Visible());
        m_header->resizeSection(i, pixelsOf(column.Width()));
    }
    m_header->headingsChanged();
    m_view->columnsChanged();
}

void TDBGrid::userResized(int column, int pixels) {
    if (m_layingOut) return;
    m_model->column(column).setWidth(toTwips(pixels));
    Q_EMIT ColResize(column);
}

void TDBGrid::showRecordset() {
    const QScopedValueRollback<bool> layingOut(m_layingOut, true);
    const int left = m_view->horizontalScrollBar()->value();
    m_columnBefore = m_fieldsHeld ? m_view->currentIndex().column() : -1;
    m_model->showRecordset(m_source->hasRecordset() ? m_source->recordset() : nullptr);
    if (!m_fieldsHeld) m_model->makeColumnsOfFields();
    applyColumns(0, ColumnCount() - 1);
    m_view->horizontalScrollBar()->setValue(left);
    m_model->checkReadable();
    followRecordset();
}

void TDBGrid::showArray() {
    showRows(m_array && m_model->shows(*m_array), [this] { m_model->showArray(m_array); });
}

/// New values in the same rows leave the user where he was.
void TDBGrid::showRows(bool sameRows, const std::function<void()> &show) {
    const QScopedValueRollback<bool> layingOut(m_layingOut, true);
    const int left = m_view->horizontalScrollBar()->value();
    const int top = sameRows ? m_view->verticalScrollBar()->value() : 0;
    const int row = sameRows ? qMax(Row(), 0) : 0;
    m_columnBefore = sameRows ? m_view->currentIndex().column() : -1;
    show();
    applyColumns(0, ColumnCount() - 1);
    if (RowCount() > 0) selectRow(row);
    m_view->horizontalScrollBar()->setValue(left);
    if (top > 0) m_view->fitRows();
    m_view->verticalScrollBar()->setValue(top);
}

void TDBGrid::followRecordset() {
    if (!m_source->hasRecordset()) return;
    const int row = m_source->recordset()->AbsolutePosition();
    if (row >= 0 && row != Row()) selectRow(row);
}

void TDBGrid::moveRecordset(const QModelIndex &current) {
    if (!m_source || !m_source->hasRecordset()) return;
    const std::shared_ptr<Recordset> recordset = m_source->recordset();
    if (recordset->AbsolutePosition() != current.row()) recordset->setAbsolutePosition(current.row());
}

void TDBGrid::selectRow(int row) {
    if (row > 0) m_view->fitRows(); // where it comes to lie depends on the rows above it
    int column = m_view->currentIndex().column();
    if (column < 0) column = qMin(m_columnBefore, ColumnCount() - 1);
    if (column < 0 || m_view->isColumnHidden(column)) column = m_view->firstVisibleColumn();
    const int left = m_view->horizontalScrollBar()->value();
    m_view->setCurrentIndex(m_model->index(row, column));
    m_view->horizontalScrollBar()->setValue(left);
}

bool TDBGrid::showCellTip(QWidget &place, const QHelpEvent &event) {
    const QString whole = wholeTextAt(place, event.pos());
    QString tip = markedTip(place, event.pos());
    if (!tip.isEmpty()) {
        // of the cell alone
    } else if (m_cellTips != 0 && m_fetchCellTip) {
        const std::optional<QString> fetched = fetchedTip(place, event.pos().x());
        tip = fetched.value_or(QString());
        if (whole.isEmpty() && fetched && tip.isEmpty()) return false;
    } else if (whole.isEmpty()) {
        return false;
    }
    const bool both = !whole.isEmpty() && !tip.isEmpty();
    QToolTip::showText(event.globalPos(), both ? whole + QLatin1Char('\n') + tip : whole + tip, &place,
                       partAt(place, event.pos()));
    return true;
}

/// The tip goes when the mouse leaves it. A footer is one part.
QRect TDBGrid::partAt(const QWidget &place, const QPoint &at) const {
    if (&place == m_view->viewport()) return m_view->visualRect(m_view->indexAt(at));
    const int column = m_header->logicalIndexAt(at.x());
    if (&place != m_header->viewport() || column < 0) return {};
    return {m_header->sectionViewportPosition(column), 0, m_header->sectionSize(column), m_header->height()};
}

std::optional<QString> TDBGrid::fetchedTip(const QWidget &place, int x) const {
    if (&place == m_header->viewport()) return m_fetchCellTip(GridArea::Header, m_header->logicalIndexAt(x));
    if (&place == m_footer) return m_fetchCellTip(GridArea::Footer, m_footer->columnAt(x));
    return m_fetchCellTip(GridArea::Cell, m_view->columnAt(x));
}

QString TDBGrid::markedTip(const QWidget &place, const QPoint &at) const {
    return &place == m_view->viewport() ? m_view->indexAt(at).data(Qt::ToolTipRole).toString() : QString();
}

/// Empty where the text can be read in its place.
QString TDBGrid::wholeTextAt(const QWidget &place, const QPoint &at) const {
    if (&place == m_view->viewport()) {
        const QModelIndex index = m_view->indexAt(at);
        return index.isValid() && m_delegate->isCut(index) ? index.data().toString() : QString();
    }
    if (&place != m_header->viewport()) return {};
    const int column = m_header->logicalIndexAt(at.x());
    if (column < 0 || !m_header->isCut(column)) return {};
    return onOneLine(m_model->column(column).Caption());
}

void TDBGrid::updateScrollBar() {
    const QScrollBar *hidden = m_view->horizontalScrollBar();
    m_scrollBar->setRange(hidden->minimum(), hidden->maximum());
    m_scrollBar->setPageStep(hidden->pageStep());
    m_scrollBar->setSingleStep(hidden->singleStep());
    m_scrollBar->setVisible(hidden->maximum() > hidden->minimum());
}
