#include "material/menu_place.h"

#include "data/table_vocabulary.h"

MenuPlace menuPlaceOf(const QString &key) {
    if (key == QLatin1String("Design")) return {"View", 6};
    const TableVocabulary::Table *table = TableVocabulary::find(key);
    if (!table) return {"View", 0};
    return {QString::fromUtf16(table->menuGroup), table->menuIndex};
}
