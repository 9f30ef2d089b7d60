// What the main program asks for.
#pragma once

#include <optional>
#include <vector>

#include "table_reader/access_file.h"
#include "table_reader/table_search.h"

struct Request {
    TableProtocol::Request kind = TableProtocol::Request::Rows;
    std::size_t table = 0;
    std::vector<Condition> conditions;
    std::vector<std::size_t> columns; // of a LookAhead
};

/// Waits for the first one, and gives the password. Nothing at the end of the input, or for another request.
std::optional<std::u16string> readOpenRequest(int input);
/// Waits for the next one. Nothing at the end of the input, or for what is no request for this file: the
/// other end is not the one it should be.
std::optional<Request> readRequest(int input, const AccessFile &file);
