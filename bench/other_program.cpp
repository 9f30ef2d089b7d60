#include "bench/other_program.h"

#include <cstdio>
#include <cstdlib>

#include <QFile>
#include <QProcess>

namespace Bench {

void runToEnd(const QString &program, const QStringList &arguments) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit &&
        process.exitCode() == 0)
        return;
    std::fprintf(stderr, "%s does not run: %s\n", qPrintable(program), qPrintable(process.errorString()));
    std::exit(1);
}

bool othersRead(const QString &database) {
    QFile file(database);
    return file.open(QFile::ReadOnly) && file.read(32).mid(4, 15) == "Standard Jet DB";
}

void exportTable(const QString &database, const QString &table) {
    runToEnd("mdb-export", {database, table});
}

OtherSelect::OtherSelect(const QString &database, const QString &statement)
    : m_database(database) {
    if (!m_statement.open()) std::exit(1);
    m_statement.write(statement.toUtf8());
    m_statement.close();
}

void OtherSelect::run() const {
    runToEnd("mdb-sql", {"-HFP", "-i", m_statement.fileName(), m_database});
}

} // namespace Bench
