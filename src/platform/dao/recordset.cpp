#include "platform/dao/recordset.h"

#include "platform/dao/recordset_rows.h"
#include "platform/runtime/runtime_error.h"

Recordset::Recordset(std::shared_ptr<RecordsetRows> rows)
    : m_rows(std::move(rows)) {}

bool Recordset::Bof() const {
    return m_row < 0 || m_rows->count() == 0;
}

bool Recordset::Eof() const {
    return m_row >= m_rows->count();
}

int Recordset::RecordCount() const {
    return m_rows->count();
}

void Recordset::MoveFirst() {
    if (m_rows->count() > 0) moveTo(0);
}

void Recordset::MovePrevious() {
    if (Bof()) throw RuntimeError(3021);
    moveTo(m_row - 1);
}

void Recordset::MoveNext() {
    if (Eof()) throw RuntimeError(3021);
    moveTo(m_row + 1);
}

void Recordset::MoveLast() {
    if (m_rows->count() > 0) moveTo(m_rows->count() - 1);
}

std::shared_ptr<Recordset> Recordset::Clone() const {
    return std::make_shared<Recordset>(m_rows);
}

void Recordset::FindFirst(const QString &criterion) {
    find(criterion, 0, 1);
}

void Recordset::FindPrevious(const QString &criterion) {
    find(criterion, m_row - 1, -1);
}

void Recordset::FindNext(const QString &criterion) {
    find(criterion, m_row + 1, 1);
}

void Recordset::FindLast(const QString &criterion) {
    find(criterion, m_rows->count() - 1, -1);
}

void Recordset::CancelUpdate(int) {
    throw RuntimeError(3020); // nothing is ever being edited
}

void Recordset::Close() {
    m_reposition = nullptr;
}

QVariant Recordset::Fields(const QString &name) const {
    const int column = fieldIndex(name);
    if (column < 0) throw RuntimeError(3265);
    return Fields(column);
}

QVariant Recordset::Fields(int position) const {
    if (position < 0 || position >= m_rows->fields().size()) throw RuntimeError(3265);
    if (AbsolutePosition() < 0) throw RuntimeError(3021);
    return m_rows->value(m_row, position);
}

const FieldDefinitions &Recordset::fieldDefinitions() const {
    return m_rows->fields();
}

int Recordset::fieldIndex(const QString &name) const {
    return ::fieldIndex(m_rows->fields(), name);
}

int Recordset::AbsolutePosition() const {
    return m_row >= 0 && m_row < m_rows->count() ? m_row : -1;
}

void Recordset::setAbsolutePosition(int row) {
    if (row < 0 || row >= m_rows->count()) throw RuntimeError(3021);
    moveTo(row);
}

QVariant Recordset::value(int row, int column) const {
    return m_rows->value(row, column);
}

void Recordset::checkReadable(int column) const {
    m_rows->checkReadable(column);
}

void Recordset::setRepositionHandler(std::function<void()> handler) {
    m_reposition = std::move(handler);
}

void Recordset::find(const QString &criterion, int from, int step) {
    const int found = m_rows->find(criterion, from, step);
    m_noMatch = found < 0;
    if (!m_noMatch) moveTo(found);
}

void Recordset::moveTo(int row) {
    m_row = row;
    if (m_reposition) m_reposition();
}
