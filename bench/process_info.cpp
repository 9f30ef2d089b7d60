#include "bench/process_info.h"

#include <unistd.h>

#include <QFile>
#include <QList>

namespace Bench {

namespace {

QByteArray read(qint64 process, const char *name) {
    QFile file(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name)));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QList<qint64> withChildren(qint64 process) {
    QList<qint64> result{process};
    const QByteArray children =
        read(process, ("task/" + QByteArray::number(process) + "/children").constData());
    for (const QByteArray &child : children.simplified().split(' '))
        if (!child.isEmpty()) result += withChildren(child.toLongLong());
    return result;
}

double megabytes(const QByteArray &status, const QByteArray &field) {
    const qsizetype at = status.indexOf('\n' + field + ':');
    if (at < 0) return 0;
    const QByteArray line = status.mid(at + field.size() + 2);
    return line.left(line.indexOf("kB")).trimmed().toDouble() / 1024;
}

} // namespace

Memory memoryOf(qint64 process) {
    Memory memory;
    for (const qint64 one : withChildren(process)) {
        const QByteArray status = read(one, "status");
        memory.resident += megabytes(status, "VmRSS");
        memory.peak += megabytes(status, "VmHWM");
    }
    return memory;
}

double processorTimeOf(qint64 process) {
    constexpr int UserTime = 11; // the fields behind the name, which may hold blanks
    double ticks = 0;
    for (const qint64 one : withChildren(process)) {
        const QByteArray line = read(one, "stat");
        const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > UserTime + 1)
            ticks += fields[UserTime].toDouble() + fields[UserTime + 1].toDouble();
    }
    return ticks / static_cast<double>(sysconf(_SC_CLK_TCK));
}

} // namespace Bench
