// The sample tables as texts: the first line is `column:TYPE` for each column, an unquoted \N is Null.
#pragma once

#include <stdexcept>

#include <QDateTime>
#include <QFile>
#include <QVariant>
#include <QVector>

#include "platform/dao/field_type.h"

struct CsvTable {
    FieldDefinitions fields;
    QVector<QVector<QVariant>> rows;

    static CsvTable read(const QString &path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read " + path.toStdString());
        CsvTable table;
        const QVector<QVector<QVariant>> lines = split(QString::fromUtf8(file.readAll()));
        for (const QVariant &head : lines.first())
            table.fields.append(field(head.toString()));
        for (qsizetype i = 1; i < lines.size(); ++i) {
            QVector<QVariant> row;
            for (qsizetype column = 0; column < table.fields.size(); ++column)
                row.append(typed(lines[i].value(column), table.fields[column].type));
            table.rows.append(row);
        }
        return table;
    }

    /// The cells of each line.
    static QVector<QVector<QVariant>> split(const QString &text) {
        QVector<QVector<QVariant>> lines(1);
        QString cell;
        bool quoted = false;
        bool wasQuoted = false;
        const auto endCell = [&] {
            const bool null = !wasQuoted && cell == QLatin1String("\\N");
            lines.last().append(null ? QVariant() : QVariant(cell));
            cell = QLatin1String("");
            wasQuoted = false;
        };
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar c = text[i];
            if (quoted && c == '"' && text.mid(i + 1, 1) == QLatin1String("\"")) {
                cell += text[++i];
            } else if (c == '"') {
                quoted = !quoted;
                wasQuoted = true;
            } else if (quoted) {
                cell += c;
            } else if (c == ',') {
                endCell();
            } else if (c == '\n') {
                endCell();
                if (i + 1 < text.size()) lines.append(QVector<QVariant>());
            } else if (c != '\r') {
                cell += c;
            }
        }
        return lines;
    }

private:
    static FieldDefinition field(const QString &head) {
        static const QHash<QString, FieldType> types = {
            {"BOOLEAN", FieldType::Boolean}, {"BYTE", FieldType::Byte},     {"INT", FieldType::Integer},
            {"LONG", FieldType::Long},       {"SINGLE", FieldType::Single}, {"DOUBLE", FieldType::Double},
            {"DATE", FieldType::Date},       {"TEXT", FieldType::Text},     {"MEMO", FieldType::Memo},
        };
        const QString declared = head.section(':', 1);
        FieldDefinition field;
        field.name = head.section(':', 0, 0);
        field.type = types.value(declared.section('(', 0, 0));
        field.size = declared.section('(', 1).chopped(declared.contains('(') ? 1 : 0).toInt();
        return field;
    }

    static QVariant typed(const QVariant &cell, FieldType type) {
        if (!cell.isValid()) return {};
        switch (type) {
        case FieldType::Boolean:
            return cell.toInt() != 0;
        case FieldType::Single:
            return cell.toFloat();
        case FieldType::Double:
            return cell.toDouble();
        case FieldType::Date:
            return QDateTime(QDate::fromString(cell.toString(), Qt::ISODate), QTime(0, 0));
        case FieldType::Text:
        case FieldType::Memo:
            return cell;
        default:
            return cell.toInt();
        }
    }
};
