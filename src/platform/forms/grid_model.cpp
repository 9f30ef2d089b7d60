#include "platform/forms/grid_model.h"

#include <algorithm>

#include <QApplication>
#include <QFont>

#include "platform/dao/recordset.h"
#include "platform/forms/grid_cells.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/x_array_db.h"

QString onOneLine(const QString &caption) {
    QStringList lines = caption.split(QLatin1Char('\n'));
    for (QString &line : lines)
        line = line.trimmed();
    lines.removeAll(QString());
    return lines.join(QLatin1Char(' '));
}

GridModel::GridModel(QObject *parent)
    : QAbstractTableModel(parent) {}

GridModel::~GridModel() = default;

void GridModel::showRecordset(std::shared_ptr<Recordset> recordset) {
    beginResetModel();
    m_array = nullptr;
    m_cells = nullptr;
    m_recordset = std::move(recordset);
    m_rows = m_recordset ? m_recordset->RecordCount() : 0;
    findFields();
    endResetModel();
}

void GridModel::showArray(std::shared_ptr<XArrayDB> array) {
    beginResetModel();
    m_recordset = nullptr;
    m_cells = nullptr;
    m_array = std::move(array);
    m_rows = m_array ? m_array->Count(1) : 0;
    m_firstArrayRow = m_array ? m_array->LowerBound(1) : 0;
    m_firstArrayColumn = m_array ? m_array->LowerBound(2) : 0;
    endResetModel();
}

void GridModel::showCells(std::shared_ptr<const GridCells> cells) {
    beginResetModel();
    m_recordset = nullptr;
    m_array = nullptr;
    m_cells = std::move(cells);
    m_rows = m_cells ? m_cells->rows : 0;
    endResetModel();
}

bool GridModel::rowsGrow() const {
    return m_array != nullptr || (m_cells && m_cells->rowsGrow);
}

bool GridModel::shows(const XArrayDB &array) const {
    return m_array.get() == &array && m_rows == array.Count(1) && m_firstArrayRow == array.LowerBound(1);
}

GridColumn &GridModel::addColumn() {
    const int index = columnCount();
    beginInsertColumns({}, index, index);
    m_columns.push_back(
        std::make_unique<GridColumn>([this](const GridColumn &changed) { onColumnChanged(changed); }));
    m_fields.push_back(-1);
    endInsertColumns();
    return *m_columns.back();
}

void GridModel::removeColumn(int index) {
    beginRemoveColumns({}, index, index);
    m_columns.erase(m_columns.begin() + index);
    m_fields.erase(m_fields.begin() + index);
    endRemoveColumns();
}

void GridModel::makeColumnsOfFields() {
    while (columnCount() > 0)
        removeColumn(columnCount() - 1);
    if (!m_recordset) return;
    for (const FieldDefinition &field : m_recordset->fieldDefinitions()) {
        if (field.type == FieldType::Unsupported) continue;
        GridColumn &column = addColumn();
        column.setDataField(field.name);
        column.setCaption(field.name);
    }
}

int GridModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int GridModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant GridModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) return {};
    switch (role) {
    case Qt::DisplayRole: {
        const QVariant cell = value(index.row(), index.column());
        return IsNull(cell) ? QString() : CStr(cell).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    }
    case Qt::TextAlignmentRole:
        return int(column(index.column()).Alignment() | Qt::AlignVCenter);
    case Qt::AccessibleTextRole:
        return hasCaptionRows() ? spokenText(index) : QVariant();
    default:
        return m_cells && m_cells->mark ? marked(index, role) : QVariant();
    }
}

QVariant GridModel::marked(const QModelIndex &index, int role) const {
    if (role != Qt::FontRole && role != Qt::BackgroundRole && role != Qt::ToolTipRole &&
        role != Qt::AccessibleDescriptionRole)
        return {};
    const GridCellMark mark = m_cells->mark(index.row(), index.column());
    if (role == Qt::BackgroundRole) return mark.BackColor.isValid() ? mark.BackColor : QVariant();
    if (role != Qt::FontRole) return mark.tip;
    if (!mark.bold) return {};
    QFont font = QApplication::font();
    font.setBold(true);
    return font;
}

/// No heading tells a screen reader there what a value is, so that each says its caption.
QString GridModel::spokenText(const QModelIndex &index) const {
    const QString text = onOneLine(index.data().toString());
    const int captions = captionRowOf(index.row());
    if (text.isEmpty() || captions == index.row()) return text;
    const QString caption = onOneLine(index.siblingAtRow(captions).data().toString());
    return caption.isEmpty() ? text : text + QLatin1String(", ") + caption;
}

/// What stands first in a row says better than its number which one it is.
QString GridModel::rowHeading(int row) const {
    const int from = hasCaptionRows() ? captionRowOf(row) : row;
    for (int i = 0; i < columnCount(); ++i)
        if (column(i).Visible()) return onOneLine(index(from, i).data().toString());
    return {};
}

void GridModel::setRowOrder(int column, Qt::SortOrder order) {
    m_orderColumn = column;
    m_order = order;
}

QString GridModel::spokenHeading(int column) const {
    QString heading = onOneLine(this->column(column).Caption());
    if (column != m_orderColumn) return heading;
    for (const QChar mark :
         {QChar(0x25B2), QChar(0x25BC)}) // triangles, which only the eye can take for an order
        if (heading.endsWith(mark)) heading = heading.chopped(1).trimmed();
    return heading +
           (m_order == Qt::AscendingOrder ? QStringLiteral(", ascending") : QStringLiteral(", descending"));
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role == Qt::AccessibleTextRole)
        return orientation == Qt::Vertical ? rowHeading(section) : spokenHeading(section);
    if (orientation == Qt::Vertical) return role == Qt::DisplayRole ? section + 1 : QVariant();
    if (role != Qt::DisplayRole) return {};
    return QString(column(section).Caption()).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

void GridModel::onColumnChanged(const GridColumn &column) {
    const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                    [&column](const auto &own) { return own.get() == &column; });
    findFields();
    checkReadable(); // not in the middle of painting
    Q_EMIT columnChanged(static_cast<int>(found - m_columns.begin()));
}

QVariant GridModel::value(int row, int column) const {
    if (m_recordset) {
        const int field = m_fields[static_cast<std::size_t>(column)];
        return field < 0 ? QVariant() : m_recordset->value(row, field);
    }
    if (m_cells) return m_cells->text(row, column);
    if (!m_array) return {};
    // Its owner may have made the array smaller since it was shown.
    const int arrayRow = m_firstArrayRow + row;
    const int arrayColumn = m_firstArrayColumn + column;
    if (arrayRow < m_array->LowerBound(1) || arrayRow > m_array->UpperBound(1)) return {};
    if (arrayColumn < m_array->LowerBound(2) || arrayColumn > m_array->UpperBound(2)) return {};
    return m_array->Get(arrayRow, arrayColumn);
}

void GridModel::checkReadable() const {
    if (!m_recordset || m_rows == 0) return;
    for (const int field : m_fields)
        if (field >= 0) m_recordset->checkReadable(field);
}

void GridModel::findFields() {
    if (!m_recordset) return;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        m_fields[i] = m_recordset->fieldIndex(m_columns[i]->DataField());
}
