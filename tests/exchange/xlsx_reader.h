// Reads a workbook's cells back from its packed XML.
#pragma once

#include <stdexcept>

#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>
#include <QXmlStreamReader>

struct ReadCell {
    QString text;
    /// Of a number: "0.00".
    QString format;
    bool isNumber = false;
};

struct ReadSheet {
    QString name;
    /// A row has as many cells as its last filled one needs.
    QVector<QVector<ReadCell>> rows;

    QStringList texts(qsizetype row) const {
        QStringList texts;
        for (const ReadCell &cell : rows.value(row))
            texts << cell.text;
        return texts;
    }
};

class XlsxReader {
public:
    explicit XlsxReader(const QString &path) {
        if (QProcess::execute("unzip", {"-q", path, "-d", m_folder.path()}) != 0)
            throw std::runtime_error("unzip cannot read it");
        each("xl/sharedStrings.xml", [this](QXmlStreamReader &xml) {
            if (xml.name() == u"si") m_texts << QString();
            if (xml.name() == u"t") m_texts.last() += xml.readElementText();
        });
        readFormats();
        QStringList names;
        each("xl/workbook.xml", [&names](QXmlStreamReader &xml) {
            if (xml.name() == u"sheet") names << xml.attributes().value("name").toString();
        });
        for (const QString &name : names)
            sheets << readSheet(name, QStringLiteral("xl/worksheets/sheet%1.xml").arg(sheets.size() + 1));
    }

    QVector<ReadSheet> sheets;

private:
    template <class Call>
    void each(const QString &name, Call call) const {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("no " + name.toStdString());
        QXmlStreamReader xml(&file);
        while (!xml.atEnd())
            if (xml.readNext() == QXmlStreamReader::StartElement) call(xml);
        if (xml.hasError()) throw std::runtime_error(xml.errorString().toStdString());
    }

    void readFormats() {
        QHash<QString, QString> codes{{"0", ""}, {"1", "0"}, {"2", "0.00"}, {"49", "@"}};
        bool isOfCells = false;
        each("xl/styles.xml", [&](QXmlStreamReader &xml) {
            const auto attributes = xml.attributes();
            if (xml.name() == u"numFmt")
                codes[attributes.value("numFmtId").toString()] = attributes.value("formatCode").toString();
            if (xml.name() == u"cellXfs" || xml.name() == u"cellStyles") isOfCells = xml.name() == u"cellXfs";
            if (xml.name() == u"xf" && isOfCells)
                m_formats << codes.value(attributes.value("numFmtId").toString(), "?");
        });
    }

    static qsizetype columnOf(const QString &reference) {
        qsizetype column = 0;
        for (const QChar sign : reference)
            if (sign.isLetter()) column = column * 26 + sign.unicode() - 'A' + 1;
        return column - 1;
    }

    ReadSheet readSheet(const QString &name, const QString &file) const {
        ReadSheet sheet{name, {}};
        ReadCell *cell = nullptr;
        bool isText = false;
        each(file, [&](QXmlStreamReader &xml) {
            const auto attributes = xml.attributes();
            if (xml.name() == u"row") {
                sheet.rows.resize(attributes.value("r").toInt());
            } else if (xml.name() == u"c") {
                const qsizetype column = columnOf(attributes.value("r").toString());
                sheet.rows.last().resize(column + 1);
                cell = &sheet.rows.last()[column];
                cell->format = m_formats.value(attributes.value("s").toInt());
                isText = attributes.value("t") == u"s";
            } else if (xml.name() == u"v") {
                cell->text = xml.readElementText();
                cell->isNumber = !isText;
                if (isText) cell->text = m_texts.value(cell->text.toInt());
            }
        });
        return sheet;
    }

    QTemporaryDir m_folder;
    QStringList m_texts;
    QStringList m_formats;
};
