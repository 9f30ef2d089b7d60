// The helper program: hands over the tables of an Access file, which it finds open. What it is asked and what
// it answers is in platform/dao/table_protocol.h. It ends with its input.
#include <cstdlib>
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
#include "table_reader/table_search.h"

using TableProtocol::FailureKind;

namespace {

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
    LookAhead lookAhead(searches);
    while (true) {
        lookAhead.workUntilInput(STDIN_FILENO);
        const std::optional<Request> request = readRequest(STDIN_FILENO, file);
        if (!request) return;
        if (request->kind == TableProtocol::Request::LookAhead) {
            lookAhead.add(request->table, request->columns);
            continue;
        }
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
    const bool isCaged = cage::shut(TableProtocol::FileDescriptor);
    Reply reply(STDOUT_FILENO);
    const std::optional<std::u16string> password = readOpenRequest(STDIN_FILENO);
    if (!password) return EXIT_FAILURE;
    try {
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
