// The helper program: hands over the tables of an Access file or an SQLite file, which it finds open. What it
// is asked and what it answers is in platform/dao/table_protocol.h. It ends with its input.
#include <cstdlib>
#include <ctime>
#include <memory>
#include <new>

#include <unistd.h>

#include "table_reader/access_file.h"
#include "table_reader/cage.h"
#include "table_reader/damaged.h"
#include "table_reader/limits.h"
#include "table_reader/look_ahead.h"
#include "table_reader/reply.h"
#include "table_reader/request.h"
#include "table_reader/sqlite_answers.h"
#include "table_reader/sqlite_database.h"
#include "table_reader/table_search.h"

using TableProtocol::FailureKind;

namespace {

constexpr std::size_t PagesAtOnce = 64;

void sendCatalog(const AccessFile &file, bool isCaged, Reply &reply) {
    file.checkUnchanged();
    reply.number(static_cast<std::uint8_t>(isCaged));
    reply.number(file.identity());
    reply.number(static_cast<std::uint16_t>(file.tables().size()));
    for (const Table &table : file.tables()) {
        reply.name(table.name);
        reply.number(table.rows);
        reply.number(static_cast<std::uint16_t>(table.columns.size()));
        for (const Column &column : table.columns) {
            reply.name(column.name);
            reply.number(column.type);
            reply.number(static_cast<std::uint16_t>(column.size));
        }
    }
    reply.number(static_cast<std::uint16_t>(file.others().size()));
    for (const OtherObject &other : file.others()) {
        reply.name(other.name);
        reply.number(other.kind);
    }
    reply.send(TableProtocol::Reply::Catalog);
}

void answerRequests(const AccessFile &file, Reply &reply) {
    TableSearches searches(file);
    LookAhead lookAhead([&](std::size_t table, const std::vector<std::size_t> &columns) {
        try {
            return searches.of(table).lookAhead(columns, PagesAtOnce);
        } catch (const Damaged &) {
            return false; // whoever asks for the table is told
        }
    });
    while (true) {
        lookAhead.workUntilInput(STDIN_FILENO);
        const std::optional<Request> request = readRequest(STDIN_FILENO);
        if (!request || request->table >= file.tables().size() ||
            !fits(*request, file.tables()[request->table]))
            return;
        if (request->kind == TableProtocol::Request::LookAhead) {
            lookAhead.add(request->table, request->columns);
            continue;
        }
        if (request->kind != TableProtocol::Request::Rows) return;
        limits::allowProcessorTime();
        try {
            searches.of(request->table).run(request->conditions, reply);
            file.checkUnchanged();
            reply.endRows();
        } catch (const Damaged &damage) {
            reply.fail(FailureKind::Damaged, damage.what());
        }
    }
}

} // namespace

int main() {
    limits::set();
    tzset(); // a view may ask for local time, and the zone lies in a file
    const bool isCaged = cage::shut(TableProtocol::FileDescriptor);
    Reply reply(STDOUT_FILENO);
    const std::optional<std::u16string> password = readOpenRequest(STDIN_FILENO);
    if (!password) return EXIT_FAILURE;
    try {
        if (SqliteDatabase::isSqlite(TableProtocol::FileDescriptor)) {
            answerFromSqlite(TableProtocol::FileDescriptor, STDIN_FILENO, isCaged, reply);
            return EXIT_SUCCESS;
        }
        const AccessFile file(TableProtocol::FileDescriptor, *password);
        sendCatalog(file, isCaged, reply);
        answerRequests(file, reply);
    } catch (const WrongPassword &) {
        reply.fail(FailureKind::WrongPassword, {});
        return EXIT_FAILURE;
    } catch (const Damaged &damage) {
        reply.fail(FailureKind::Damaged, damage.what());
        return EXIT_FAILURE;
    } catch (const std::bad_alloc &) {
        reply.fail(FailureKind::Damaged, "out of memory");
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
