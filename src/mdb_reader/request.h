// What the main program asks for.
#pragma once

#include <optional>
#include <vector>

#include "mdb_reader/access_file.h"
#include "mdb_reader/table_search.h"

struct Request {
    std::size_t table = 0;
    std::vector<Condition> conditions;
};

/// Waits for the next one. Nothing at the end of the input, or for what is no request for this file: the
/// other end is not the one it should be.
std::optional<Request> readRequest(int input, const AccessFile &file);
