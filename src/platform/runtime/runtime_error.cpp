#include "platform/runtime/runtime_error.h"

#include <QHash>

RuntimeError::RuntimeError(int number, QString description, QString source)
    : m_number(number)
    , m_description(description.isEmpty() ? standardDescription(number) : std::move(description))
    , m_source(std::move(source))
    , m_what(m_description.toUtf8()) {}

RuntimeError RuntimeError::ofFile(int number, const QString &path) {
    return RuntimeError(number, standardDescription(number) + QStringLiteral(": '%1'").arg(path));
}

QString RuntimeError::standardDescription(int number) {
    static const QHash<int, const char *> descriptions = {
        {3, "Return without GoSub"},
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {7, "Out of memory"},
        {9, "Subscript out of range"},
        {10, "This array is fixed or temporarily locked"},
        {11, "Division by zero"},
        {13, "Type mismatch"},
        {14, "Out of string space"},
        {16, "Expression too complex"},
        {17, "Can't perform requested operation"},
        {20, "Resume without error"},
        {28, "Out of stack space"},
        {35, "Sub or Function not defined"},
        {48, "Error in loading DLL"},
        {51, "Internal error"},
        {52, "Bad file name or number"},
        {53, "File not found"},
        {54, "Bad file mode"},
        {55, "File already open"},
        {57, "Device I/O error"},
        {58, "File already exists"},
        {59, "Bad record length"},
        {61, "Disk full"},
        {62, "Input past end of file"},
        {63, "Bad record number"},
        {67, "Too many files"},
        {68, "Device unavailable"},
        {70, "Permission denied"},
        {71, "Disk not ready"},
        {74, "Can't rename with different drive"},
        {75, "Path/File access error"},
        {76, "Path not found"},
        {91, "Object variable or With block variable not set"},
        {92, "For loop not initialized"},
        {93, "Invalid pattern string"},
        {94, "Invalid use of Null"},
        {321, "Invalid file format"},
        {340, "Control array element doesn't exist"},
        {380, "Invalid property value"},
        {381, "Invalid property array index"},
        {382, "Set not supported at runtime"},
        {383, "Set not supported (read-only property)"},
        {400, "Form already displayed; can't show modally"},
        {401, "Can't show non-modal form when modal form is displayed"},
        {424, "Object required"},
        {429, "ActiveX component can't create object"},
        {438, "Object doesn't support this property or method"},
        {445, "Object doesn't support this action"},
        {449, "Argument not optional"},
        {450, "Wrong number of arguments or invalid property assignment"},
        {457, "This key is already associated with an element of this collection"},
        {481, "Invalid picture"},
        {482, "Printer error"},
        {3005, "Database name isn't a valid database name."},
        {3011, "The database engine could not find the object."},
        {3020, "Update or CancelUpdate without AddNew or Edit."},
        {3021, "No current record."},
        {3024, "Could not find file."},
        {3026, "Not enough space on disk."},
        {3027, "Can't update. Database or object is read-only."},
        {3031, "Not a valid password."},
        {3034, "Commit or Rollback without BeginTrans."},
        {3043, "Disk or network error."},
        {3044,
         "Not a valid path. Make sure that the path name is spelled correctly and that you are connected "
         "to the server on which the file resides."},
        {3045, "Could not use the file; file already in use."},
        {3049,
         "Can't open database. It may not be a database that your application recognizes, or the file may "
         "be corrupt."},
        {3051,
         "The database engine cannot open the file. It is already opened exclusively by another user, or "
         "you need permission to view its data."},
        {3061, "Too few parameters."},
        {3070, "The database engine does not recognize the expression as a valid field name or expression."},
        {3075, "Syntax error in query expression."},
        {3077, "Syntax error in expression."},
        {3078,
         "The database engine cannot find the input table or query. Make sure it exists and that its name "
         "is spelled correctly."},
        {3131, "Syntax error in FROM clause."},
        {3141,
         "The SELECT statement includes a reserved word or an argument name that is misspelled or missing, "
         "or the punctuation is incorrect."},
        {3163, "The field is too small to accept the amount of data you attempted to add."},
        {3251, "Operation is not supported for this type of object."},
        {3265, "Item not found in this collection."},
        {3343, "Unrecognized database format."},
        {3356,
         "You attempted to open a database that is already opened exclusively by another user. Try again "
         "when the database is available."},
        {3420, "Object invalid or no longer set."},
    };
    const auto found = descriptions.constFind(number);
    return QString::fromLatin1(
        found != descriptions.constEnd() ? *found : "Application-defined or object-defined error");
}
