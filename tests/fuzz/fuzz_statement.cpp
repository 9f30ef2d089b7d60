// Any text as a statement, as the condition of a find, or typed into a statement's literal, over small
// tables.
#include "platform/dao/recordset.h"
#include "tests/dao/sql_support.h"
#include "tests/fuzz/fuzz_input.h"

namespace {

Database &database() {
    static Database instance = [] {
        auto source = std::make_unique<ListSource>();
        source->add("Part", "id:INT,label:TEXT(80),made:DATE,mass:SINGLE,inStock:BOOLEAN,note:MEMO",
                    {"1|Bolt M8|2017-09-30|0.1|1|steel", "2|bolt m8|2018-02-01|12.25|0|\\N",
                     "3|Écrou|\\N|\\N|0|Zinc", "4|\\N|2016-01-05|3|1|it's 100 % [new]"});
        source->add("Size", "id:INT,width:INT,price:DOUBLE", {"1|16|2.5", "1|40|3", "2|16|\\N", "\\N|60|0"});
        return databaseOver(std::move(source));
    }();
    return instance;
}

void readAll(const Recordset &rows) {
    for (int row = 0; row < rows.RecordCount(); ++row)
        for (int column = 0; column < rows.fieldDefinitions().size(); ++column)
            shownCell(rows.value(row, column));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const fuzz::Input input(data, size);
    fuzz::setRegion(input.flags >> 2);
    // Everything that the engine has to say against a statement; 93 is for a pattern of LIKE.
    fuzz::allowing({93,   3061, 3070, 3075, 3077, 3078, 3085, 3093, 3095, 3096, 3122,
                    3131, 3132, 3138, 3141, 3142, 3143, 3190, 3306, 3360, 3464},
                   [&] {
                       const auto opened = [](const QString &sql) { return database().OpenRecordset(sql); };
                       if (!input.flag(0)) {
                           readAll(*opened(input.text));
                       } else if (!input.flag(1)) {
                           opened("select * from Part order by label")->FindFirst(input.text);
                       } else {
                           readAll(*opened("select distinct label from Part where label like '*" +
                                           input.text + "*' and id > 0 order by label"));
                       }
                   });
    return 0;
}
