// Stored rows to the rows of an answer.
#pragma once

#include <string>

#include "table_reader/access_file.h"
#include "table_reader/answer_limit.h"
#include "table_reader/cell_text.h"
#include "table_reader/long_values.h"
#include "table_reader/reply.h"
#include "table_reader/row.h"

class RowWriter {
public:
    RowWriter(const AccessFile &file, const Table &table);

    /// A new answer begins.
    void restart() {
        m_longValues.restart();
        m_limit.restart();
    }
    /// Raises Damaged. Stays out of the loop over all rows, of which most searches write few.
    [[gnu::noinline]] void write(const Row &row, Reply &reply);

private:
    /// False for a Null, which has no value to write.
    bool writeCell(const Column &column, const Row &row, Reply &reply);

    const Table &m_table;
    CellText m_texts;
    LongValues m_longValues;
    AnswerLimit m_limit;
    std::u16string m_text;
};
