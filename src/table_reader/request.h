// What the main program asks for.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/dao/table_protocol.h"
#include "table_reader/condition.h"

struct Request {
    TableProtocol::Request kind = TableProtocol::Request::Rows;
    std::size_t table = 0;
    std::vector<Condition> conditions; // of Rows
    std::vector<std::size_t> columns;  // of a LookAhead
};

/// Waits for the first one, and gives the password. Nothing at the end of the input, or for another request.
std::optional<std::u16string> readOpenRequest(int input);
/// Waits for the next one. Nothing at the end of the input, or for what is no request: the other end is not
/// the one it should be.
std::optional<Request> readRequest(int input);

/// Whether a column of this type can be searched by, for a text or for an integer.
bool isKey(TableProtocol::CellType type, bool isText);

/// Whether the table has the columns that the request names, and these can be asked what it asks.
template <typename Table>
bool fits(const Request &request, const Table &table) {
    const auto typeOf = [&](std::size_t column) { return table.columns[column].type; };
    return std::all_of(request.conditions.begin(), request.conditions.end(),
                       [&](const Condition &condition) {
                           return condition.column < table.columns.size() &&
                                  isKey(typeOf(condition.column), condition.isText);
                       }) &&
           std::all_of(request.columns.begin(), request.columns.end(), [&](std::size_t column) {
               return column < table.columns.size() &&
                      (isKey(typeOf(column), true) || isKey(typeOf(column), false));
           });
}
