#include "platform/dao/jet_errors.h"

namespace JetErrors {

RuntimeError syntax(const QString &problem, const QString &piece) {
    return RuntimeError(3075, QString("%1 in query expression '%2'.").arg(problem, piece));
}

RuntimeError criterionSyntax(const QString &problem) {
    return RuntimeError(3077, QString("%1 in expression.").arg(problem));
}

RuntimeError clauseSyntax(const QString &clause) {
    const int number = clause == "FROM" ? 3131 : clause == "GROUP BY" ? 3132 : 3138;
    return RuntimeError(number, QString("Syntax error in %1 clause.").arg(clause));
}

RuntimeError missingParameters(int count) {
    return RuntimeError(3061, QString("Too few parameters. Expected %1.").arg(count));
}

RuntimeError unknownCriterionName(const QString &name) {
    return RuntimeError(
        3070, QString("The database engine does not recognize '%1' as a valid field name or expression.")
                  .arg(name));
}

RuntimeError unknownTable(const QString &name, const QString &whatElse) {
    QString description = QString("The database engine cannot find the input table or query '%1'.  Make sure "
                                  "it exists and that its name is spelled correctly.")
                              .arg(name);
    if (!whatElse.isEmpty())
        description +=
            QString("  In this file it is %1, which cannot be read here: make it a table.").arg(whatElse);
    return RuntimeError(3078, description);
}

RuntimeError unknownFunction(const QString &name) {
    return RuntimeError(3085, QString("Undefined function '%1' in expression.").arg(name));
}

RuntimeError orderConflictsWithDistinct(const QString &piece) {
    return RuntimeError(3093, QString("ORDER BY clause (%1) conflicts with DISTINCT.").arg(piece));
}

RuntimeError aggregateInExpression(const QString &piece) {
    return RuntimeError(3095, QString("Cannot have aggregate function in expression (%1).").arg(piece));
}

RuntimeError aggregateInWhere(const QString &piece) {
    return RuntimeError(3096, QString("Cannot have aggregate function in WHERE clause (%1).").arg(piece));
}

RuntimeError notGrouped(const QString &piece) {
    return RuntimeError(3122, QString("You tried to execute a query that does not include the specified "
                                      "expression '%1' as part of an aggregate function.")
                                  .arg(piece));
}

RuntimeError selectSyntax() {
    return RuntimeError(3141);
}

RuntimeError textAfterEnd() {
    return RuntimeError(3142, "Characters found after end of SQL statement.");
}

RuntimeError transformSyntax() {
    return RuntimeError(3143, "Syntax error in TRANSFORM statement.");
}

RuntimeError unsupportedColumn(const QString &table, const QString &column) {
    return RuntimeError(3259, QString("Invalid field data type: the values of the column '%1' of the table "
                                      "'%2' cannot be read.")
                                  .arg(column, table));
}

RuntimeError tooManyFields() {
    return RuntimeError(3190, "Too many fields defined.");
}

RuntimeError subqueryColumns() {
    return RuntimeError(3306, "You have written a subquery that can return more than one field without using "
                              "the EXISTS reserved word in the main query's FROM clause.  Revise the SELECT "
                              "statement of the subquery to request only one field.");
}

RuntimeError tooComplex() {
    return RuntimeError(3360, "Query is too complex.");
}

RuntimeError typeMismatch() {
    return RuntimeError(3464, "Data type mismatch in criteria expression.");
}

} // namespace JetErrors
