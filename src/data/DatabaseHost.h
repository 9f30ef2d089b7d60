// Who answers while the materials database is looked for and opened.
#pragma once

#include <optional>

#include <QString>

enum class DatabaseQuestion {
    /// No database is where it should be, or what is there is none: look for another?
    LookForAnother,
    /// A file of another name was chosen: choose again?
    ChooseAgain,
    /// The file does not answer: wait on?
    WaitOn
};

/// A program with windows asks its user; one without answers by itself.
class DatabaseHost {
public:
    virtual ~DatabaseHost() = default;

    /// True for yes.
    virtual bool ask(DatabaseQuestion question, const QString &text, const QString &title) = 0;
    virtual void tell(const QString &text, const QString &title) = 0;
    /// The path of the file that is to be opened; nothing when the choice is called off.
    virtual std::optional<QString> locate(const QString &dbName) = 0;
};
