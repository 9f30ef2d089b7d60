// The rows of one query, with a current record.
#pragma once

#include <functional>
#include <memory>

#include <QString>
#include <QVariant>

#include "platform/dao/field_type.h"

class RecordsetRows;

/// Navigation as in DAO. A new recordset and a new clone stand on their first row, or at beginning and end of
/// file at once when there is none. Rows are row identities: values are fetched when they are read.
class Recordset {
public:
    explicit Recordset(std::shared_ptr<RecordsetRows> rows);

    bool Bof() const;
    bool Eof() const;
    /// All rows, known at once.
    int RecordCount() const;

    /// On an empty recordset MoveFirst and MoveLast do nothing; MoveNext at end of file and MovePrevious at
    /// beginning of file raise 3021.
    void MoveFirst();
    void MovePrevious();
    void MoveNext();
    void MoveLast();

    /// The same rows with a position of its own.
    std::shared_ptr<Recordset> Clone() const;

    /// `criterion` is a condition in the engine's dialect, such as "id=3 AND name='x'". Where
    /// nothing matches, NoMatch() is True and the current record stays. Raises 3077 for a condition that is
    /// no SQL.
    void FindFirst(const QString &criterion);
    void FindPrevious(const QString &criterion);
    void FindNext(const QString &criterion);
    void FindLast(const QString &criterion);
    bool NoMatch() const { return m_noMatch; }

    /// Always 0: nothing is ever edited.
    int EditMode() const { return 0; }
    void CancelUpdate(int updateType = 1);
    /// Nobody is told of its moves any more; the rows stay.
    void Close();

    /// The current record's value. Raises 3021 without a current record, 3265 for an unknown field, 3259 for
    /// an Unsupported one.
    QVariant Fields(const QString &name) const;
    QVariant Fields(int position) const;

    const FieldDefinitions &fieldDefinitions() const;
    /// -1 for an unknown name; capitals do not count.
    int fieldIndex(const QString &name) const;

    /// The current row from 0, -1 without a current record. Setting it moves there.
    int AbsolutePosition() const;
    void setAbsolutePosition(int row);
    /// A cell of any row, without moving: what a grid paints from.
    QVariant value(int row, int column) const;
    /// Raises 3343, which value() would, before there is a row to read.
    void checkReadable(int column) const;

    /// Called after every change of the current record; a clone has none.
    void setRepositionHandler(std::function<void()> handler);

private:
    void find(const QString &criterion, int from, int step);
    void moveTo(int row);

    std::shared_ptr<RecordsetRows> m_rows;
    int m_row = 0; // -1 is beginning of file, RecordCount() end of file
    bool m_noMatch = false;
    std::function<void()> m_reposition;
};
