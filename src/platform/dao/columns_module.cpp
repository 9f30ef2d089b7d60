#include "platform/dao/columns_module.h"

#include <cstring>
#include <new>
#include <optional>

#include <sqlite3.h>

#include "platform/dao/memory_database.h"
#include "platform/dao/memory_table.h"
#include "platform/dao/table_columns.h"

namespace {

constexpr char ModuleName[] = "columns_in_memory";

struct Table : sqlite3_vtab {
    explicit Table(const TableColumns &of)
        : sqlite3_vtab{}
        , columns(of) {}

    const TableColumns &columns;
};

struct Cursor : sqlite3_vtab_cursor {
    const TableColumns &columns() const { return static_cast<const Table *>(pVtab)->columns; }
    /// To the next row that has the integer sought, from `row` on.
    void seek() {
        while (sought && row < columns().rowCount() &&
               (columns().isNull(row, soughtColumn) || columns().integer(row, soughtColumn) != *sought))
            ++row;
    }

    int row = 0;
    int soughtColumn = 0;
    std::optional<sqlite3_int64> sought;
};

Cursor &cursorOf(sqlite3_vtab_cursor *cursor) {
    return *static_cast<Cursor *>(cursor);
}

/// The arguments are the names of module, database and table.
int connect(sqlite3 *connection, void *tables, int, const char *const *arguments, sqlite3_vtab **table,
            char **) {
    const TableColumns *columns = static_cast<const ColumnTables *>(tables)->value(arguments[2]);
    if (!columns) return SQLITE_ERROR;
    QByteArrayList names;
    for (int i = 0; i < columns->fields().size(); ++i)
        names += MemoryTable::columnName(i) +
                 (isTextType(columns->fields()[i].type) ? MemoryDatabase::JetCollation : "");
    const QByteArray declaration = "create table t (" + names.join(", ") + ")";
    const int code = sqlite3_declare_vtab(connection, declaration.constData());
    if (code != SQLITE_OK) return code;
    *table = new (std::nothrow) Table(*columns);
    return *table ? SQLITE_OK : SQLITE_NOMEM;
}

int disconnect(sqlite3_vtab *table) {
    delete static_cast<Table *>(table);
    return SQLITE_OK;
}

/// Of all conditions one is met here: an integer that a column of integers must hold. SQLite tests it again.
int bestIndex(sqlite3_vtab *table, sqlite3_index_info *info) {
    const TableColumns &columns = static_cast<Table *>(table)->columns;
    info->estimatedRows = columns.rowCount();
    info->estimatedCost = columns.rowCount();
    for (int i = 0; i < info->nConstraint; ++i) {
        const auto &constraint = info->aConstraint[i];
        if (!constraint.usable || constraint.op != SQLITE_INDEX_CONSTRAINT_EQ || constraint.iColumn < 0 ||
            !isKeptAsInteger(columns.fields()[constraint.iColumn].type))
            continue;
        info->aConstraintUsage[i].argvIndex = 1;
        info->idxNum = constraint.iColumn + 1;
        info->estimatedRows = columns.rowCount() / 10;
        info->estimatedCost /= 10;
        break;
    }
    return SQLITE_OK;
}

int open(sqlite3_vtab *, sqlite3_vtab_cursor **cursor) {
    *cursor = new (std::nothrow) Cursor();
    return *cursor ? SQLITE_OK : SQLITE_NOMEM;
}

int close(sqlite3_vtab_cursor *cursor) {
    delete static_cast<Cursor *>(cursor);
    return SQLITE_OK;
}

int filter(sqlite3_vtab_cursor *opened, int index, const char *, int, sqlite3_value **values) {
    Cursor &cursor = cursorOf(opened);
    cursor.row = 0;
    cursor.sought.reset();
    // Of another type's values SQLite knows which are equal.
    if (index > 0 && sqlite3_value_type(values[0]) == SQLITE_INTEGER) {
        cursor.soughtColumn = index - 1;
        cursor.sought = sqlite3_value_int64(values[0]);
    }
    cursor.seek();
    return SQLITE_OK;
}

int next(sqlite3_vtab_cursor *cursor) {
    ++cursorOf(cursor).row;
    cursorOf(cursor).seek();
    return SQLITE_OK;
}

int eof(sqlite3_vtab_cursor *cursor) {
    return cursorOf(cursor).row >= cursorOf(cursor).columns().rowCount();
}

int column(sqlite3_vtab_cursor *opened, sqlite3_context *context, int index) {
    const Cursor &cursor = cursorOf(opened);
    const TableColumns &columns = cursor.columns();
    const FieldType type = columns.fields()[index].type;
    if (columns.isNull(cursor.row, index)) {
        sqlite3_result_null(context);
    } else if (isTextType(type)) {
        const std::string_view text = columns.text(cursor.row, index);
        sqlite3_result_text64(context, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
    } else if (isKeptAsInteger(type)) {
        sqlite3_result_int(context, columns.integer(cursor.row, index));
    } else {
        sqlite3_result_double(context, columns.number(cursor.row, index));
    }
    return SQLITE_OK;
}

int rowid(sqlite3_vtab_cursor *cursor, sqlite3_int64 *id) {
    *id = cursorOf(cursor).row + 1;
    return SQLITE_OK;
}

} // namespace

void ColumnsModule::registerIn(sqlite3 *connection, const ColumnTables &tables) {
    static const sqlite3_module module = [] {
        sqlite3_module made = {};
        made.xCreate = made.xConnect = connect;
        made.xDisconnect = made.xDestroy = disconnect;
        made.xBestIndex = bestIndex;
        made.xOpen = open;
        made.xClose = close;
        made.xFilter = filter;
        made.xNext = next;
        made.xEof = eof;
        made.xColumn = column;
        made.xRowid = rowid;
        return made;
    }();
    sqlite3_create_module(connection, ModuleName, &module, const_cast<ColumnTables *>(&tables));
}

QByteArray ColumnsModule::createTable(const QByteArray &name) {
    return "create virtual table " + name + " using " + ModuleName;
}
