// The boxes and the file dialog that a user sees while the database is opened.
#pragma once

#include "data/DatabaseHost.h"

class CommonDialog;

class DatabaseBoxes : public DatabaseHost {
public:
    explicit DatabaseBoxes(CommonDialog &dialog)
        : m_dialog(dialog) {}

    bool ask(DatabaseQuestion question, const QString &text, const QString &title) override;
    void tell(const QString &text, const QString &title) override;
    std::optional<QString> locate(const QString &dbName) override;

private:
    CommonDialog &m_dialog;
};
