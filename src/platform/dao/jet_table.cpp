#include "platform/dao/jet_table.h"

JetTable JetTable::whole(const QString &name, std::shared_ptr<MemoryTable> table) {
    JetTable whole{name, table, table->fields(), {}};
    for (int i = 0; i < whole.fields.size(); ++i)
        whole.columns += i;
    return whole;
}
