// The errors that the engine raises for a statement that it refuses, with their descriptions.
#pragma once

#include "platform/runtime/runtime_error.h"

namespace JetErrors {

/// 3075: `problem` is "Syntax error (missing operator)" and its like.
RuntimeError syntax(const QString &problem, const QString &piece);
/// 3077: the same for the condition of a find.
RuntimeError criterionSyntax(const QString &problem);
/// 3131, 3132, 3138: `clause` is "FROM", "GROUP BY" or "ORDER BY".
RuntimeError clauseSyntax(const QString &clause);
/// 3061.
RuntimeError missingParameters(int count);
/// 3070.
RuntimeError unknownCriterionName(const QString &name);
/// 3078. `whatElse` has the name and is no table: "a stored query", or nothing.
RuntimeError unknownTable(const QString &name, const QString &whatElse);
/// 3085.
RuntimeError unknownFunction(const QString &name);
/// 3093.
RuntimeError orderConflictsWithDistinct(const QString &piece);
/// 3095.
RuntimeError aggregateInExpression(const QString &piece);
/// 3096.
RuntimeError aggregateInWhere(const QString &piece);
/// 3122.
RuntimeError notGrouped(const QString &piece);
/// 3141.
RuntimeError selectSyntax();
/// 3142.
RuntimeError textAfterEnd();
/// 3143.
RuntimeError transformSyntax();
/// 3190.
RuntimeError tooManyFields();
/// 3306.
RuntimeError subqueryColumns();
/// 3360.
RuntimeError tooComplex();
/// 3259: the values of a column of a type that is not supported are asked for.
RuntimeError unsupportedColumn(const QString &table, const QString &column);
/// 3464.
RuntimeError typeMismatch();

} // namespace JetErrors
