// Databases of the tests of values.
#pragma once

#include <QTemporaryDir>

#include "data/database_names.h"
#include "platform/dao/database.h"
#include "platform/dao/db_engine.h"
#include "tests/support/pinned_settings.h"
#include "tests/support/small_database.h"
#include "values/grade_values.h"
#include "values/value_search.h"

class ValuesDatabase {
public:
    ValuesDatabase()
        : m_database(DBEngine::instance().OpenBeside(QStringLiteral(SOURCE_FOLDER "/sample/Velmar_PED.mdb"),
                                                     ";Pwd=" + DatabasePassword)) {}
    /// A small database with these rows: see smallDatabase().
    explicit ValuesDatabase(const QStringList &inserts) {
        const QString path = m_folder.filePath("small.sqlite");
        smallDatabase(inserts)(path);
        m_database = DBEngine::instance().OpenBeside(path, {});
    }

    operator Database &() const { return *m_database; } // NOLINT(google-explicit-constructor)

    Property property(const QString &name) const {
        return *Properties::named(Properties::all(*m_database), name);
    }
    std::shared_ptr<const GradeValues> grade(int id) const {
        return std::make_shared<GradeValues>(*m_database,
                                             Grades::named(*m_database, "#" + QString::number(id)).first());
    }

private:
    PinnedSettings m_settings;
    QTemporaryDir m_folder;
    std::shared_ptr<Database> m_database;
};
