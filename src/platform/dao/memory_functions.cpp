#include "platform/dao/memory_functions.h"

#include <sqlite3.h>

#include "platform/dao/date_number.h"
#include "platform/dao/like_pattern.h"
#include "platform/dao/text_folding.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/regional_settings.h"
#include "platform/runtime/runtime_error.h"

namespace {

struct ByteText {
    const char *data;
    int size;
};

ByteText textOf(sqlite3_value *value) {
    const unsigned char *text = sqlite3_value_text(value);
    return {reinterpret_cast<const char *>(text), sqlite3_value_bytes(value)};
}

void resultText(sqlite3_context *context, const QString &text) {
    const QByteArray utf8 = text.toUtf8();
    sqlite3_result_text64(context, utf8.constData(), static_cast<sqlite3_uint64>(utf8.size()),
                          SQLITE_TRANSIENT, SQLITE_UTF8);
}

int collate(void *, int leftSize, const void *left, int rightSize, const void *right) {
    return compareTexts(static_cast<const char *>(left), leftSize, static_cast<const char *>(right),
                        rightSize);
}

// The pattern of a statement, kept from its first row to its last.
const LikePattern *patternOf(sqlite3_context *context, sqlite3_value *value,
                             std::unique_ptr<LikePattern> &owned) {
    if (const void *kept = sqlite3_get_auxdata(context, 0)) return static_cast<const LikePattern *>(kept);
    const ByteText text = textOf(value);
    owned = std::make_unique<LikePattern>(QString::fromUtf8(text.data, text.size));
    return owned.get();
}

void like(sqlite3_context *context, int, sqlite3_value **arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return sqlite3_result_null(context);
    std::unique_ptr<LikePattern> owned;
    try {
        const LikePattern *pattern = patternOf(context, arguments[0], owned);
        const ByteText text = textOf(arguments[1]);
        thread_local QByteArray folded;
        foldText(text.data, text.size, folded);
        sqlite3_result_int(context, pattern->matches(folded.constData(), folded.size()));
    } catch (const RuntimeError &) {
        // A pattern out of a column that does not hold together fits no text.
        sqlite3_result_int(context, 0);
    } catch (const std::bad_alloc &) {
        sqlite3_result_error_nomem(context);
    }
    if (owned)
        sqlite3_set_auxdata(context, 0, owned.release(),
                            [](void *pattern) { delete static_cast<LikePattern *>(pattern); });
}

template <typename Convert>
void numberText(sqlite3_context *context, sqlite3_value **arguments, Convert convert) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return sqlite3_result_null(context);
    resultText(context, convert(sqlite3_value_double(arguments[0])));
}

void singleText(sqlite3_context *context, int, sqlite3_value **arguments) {
    numberText(context, arguments, [](double number) { return CStr(static_cast<float>(number)); });
}

void doubleText(sqlite3_context *context, int, sqlite3_value **arguments) {
    numberText(context, arguments, [](double number) { return CStr(number); });
}

// A column holds the same few dates many times over, and to write one down takes long.
class DateTexts {
public:
    const QString &of(double days) {
        const RegionalSettings &settings = RegionalSettings::current();
        const QString notation = settings.shortDateFormat + '\n' + settings.timeFormat;
        if (notation != m_notation || m_texts.size() >= MaximumSize) m_texts.clear();
        m_notation = notation;
        QString &text = m_texts[days];
        if (text.isEmpty()) text = settings.dateText(dateOfNumber(days));
        return text;
    }

private:
    static constexpr qsizetype MaximumSize = 10000;

    QString m_notation;
    QHash<double, QString> m_texts;
};

void dateText(sqlite3_context *context, int, sqlite3_value **arguments) {
    thread_local DateTexts texts;
    numberText(context, arguments, [](double days) { return texts.of(days); });
}

} // namespace

void registerMemoryFunctions(sqlite3 *connection) {
    const auto add = [connection](const char *name, int arguments, auto function) {
        sqlite3_create_function(connection, name, arguments, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                                function, nullptr, nullptr);
    };
    sqlite3_create_collation(connection, "jet", SQLITE_UTF8, nullptr, collate);
    add("jet_like", 2, like);
    add("jet_single", 1, singleText);
    add("jet_double", 1, doubleText);
    add("jet_date", 1, dateText);
}
