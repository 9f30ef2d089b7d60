#include "table_reader/sqlite_answers.h"

#include <memory>
#include <vector>

#include "table_reader/damaged.h"
#include "table_reader/limits.h"
#include "table_reader/look_ahead.h"
#include "table_reader/request.h"
#include "table_reader/sqlite_refused.h"
#include "table_reader/sqlite_search.h"

using TableProtocol::FailureKind;

namespace {

void sendCutOff(const SqliteCutOff &cutOff, Reply &reply) {
    reply.number(FailureKind::CutOff);
    reply.number(cutOff.size);
    reply.number(cutOff.expected);
    reply.send(TableProtocol::Reply::Failure);
}

/// False where something was wrong, which has been told.
template <typename Action>
bool tell(Reply &reply, Action action) {
    try {
        action();
        return true;
    } catch (const SqliteCutOff &cutOff) {
        sendCutOff(cutOff, reply);
    } catch (const SqliteRefused &refusal) {
        reply.fail(FailureKind::Refused, refusal.what());
    } catch (const Damaged &damage) {
        reply.fail(FailureKind::Damaged, damage.what());
    }
    return false;
}

class Answers {
public:
    Answers(int file, Reply &reply)
        : m_reply(reply)
        , m_file(file, reply)
        , m_searches(m_file.tables().size()) {}

    std::size_t tables() const { return m_file.tables().size(); }

    void sendCatalog(bool isCaged) {
        m_file.database().checkUnchanged();
        m_reply.number(static_cast<std::uint8_t>(isCaged));
        m_reply.number(m_file.database().identity());
        m_reply.number(static_cast<std::uint16_t>(tables()));
        for (const SqliteTable &table : m_file.tables()) {
            m_reply.name(table.name);
            m_reply.number(TableProtocol::NotCounted);
            addColumns(table);
        }
        m_reply.number(std::uint16_t(0)); // what else could be taken for tables
        m_reply.send(TableProtocol::Reply::Catalog);
    }

    /// False for a request that cannot be meant for this file.
    bool answer(const Request &request) {
        const SqliteTable &table = m_file.table(request.table);
        switch (request.kind) {
        case TableProtocol::Request::Rows:
            if (!fits(request, table)) return false;
            sendRows(request);
            return true;
        case TableProtocol::Request::Columns:
            addColumns(table);
            m_reply.send(TableProtocol::Reply::Columns);
            return true;
        case TableProtocol::Request::Count: {
            const std::uint32_t rows = m_file.rowCount(request.table);
            m_reply.number(rows);
            m_reply.send(TableProtocol::Reply::Count);
            return true;
        }
        case TableProtocol::Request::Open:
        case TableProtocol::Request::LookAhead:
            break;
        }
        return false;
    }

    /// Does a piece of it; false when there is nothing left. Whoever asks for the table is told what is
    /// wrong.
    bool lookAhead(std::size_t table, const std::vector<std::size_t> &columns) {
        bool isMoreLeft = false;
        m_reply.setSilent(true);
        try {
            isMoreLeft =
                fits({{}, table, {}, columns}, m_file.tables()[table]) && searchOf(table).lookAhead(columns);
        } catch (const SqliteRefused &) {
        } catch (const Damaged &) {
        }
        m_reply.setSilent(false);
        return isMoreLeft;
    }

private:
    void addColumns(const SqliteTable &table) {
        m_reply.number(static_cast<std::uint16_t>(table.columns.size()));
        for (const SqliteColumn &column : table.columns) {
            m_reply.name(column.name);
            m_reply.number(column.type);
            m_reply.number(column.size);
        }
    }

    SqliteSearch &searchOf(std::size_t table) {
        std::unique_ptr<SqliteSearch> &search = m_searches[table];
        if (!search) search = std::make_unique<SqliteSearch>(m_file.database(), m_file.table(table));
        return *search;
    }

    void sendRows(const Request &request) {
        m_file.database().checkUnchanged(); // SQLite, which takes nobody for a writer, does not look again
        searchOf(request.table).run(request.conditions, m_reply);
        m_file.database().checkUnchanged();
        m_reply.endRows();
    }

    Reply &m_reply;
    SqliteFile m_file;
    std::vector<std::unique_ptr<SqliteSearch>> m_searches;
};

} // namespace

void answerFromSqlite(int file, int input, bool isCaged, Reply &reply) {
    std::unique_ptr<Answers> answers;
    const bool isOpen = tell(reply, [&] {
        answers = std::make_unique<Answers>(file, reply);
        answers->sendCatalog(isCaged);
    });
    if (!isOpen) return;
    LookAhead lookAhead([&](std::size_t table, const std::vector<std::size_t> &columns) {
        return answers->lookAhead(table, columns);
    });
    bool isMeant = true;
    while (isMeant) {
        lookAhead.workUntilInput(input);
        const std::optional<Request> request = readRequest(input);
        if (!request || request->table >= answers->tables()) return;
        if (request->kind == TableProtocol::Request::LookAhead) {
            lookAhead.add(request->table, request->columns);
            continue;
        }
        limits::allowProcessorTime();
        tell(reply, [&] { isMeant = answers->answer(*request); });
    }
}
