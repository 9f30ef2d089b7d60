// What a saved report holds, read back from each kind of file: every cell of every table, in order.
#include <QFile>
#include <QTemporaryDir>

#include "data/modDBase.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"
#include "platform/printing/pdf_output.h"
#include "platform/printing/rtf_output.h"
#include "platform/printing/text_output.h"
#include "platform/runtime/conversions.h"
#include "reports/actRepMain.h"
#include "tests/program/reports_fixture.h"
#include "tests/support/pdf_tool.h"
#include "tests/support/rtf_reader.h"

namespace {

using Rows = QList<QStringList>;

QString cellText(const QVariant &value) {
    return IsNull(value) ? QString() : CStr(value);
}

Rows unboundRows(const Material &material, const QString &key) {
    const XArrayDB cells = material.UnboundTableData(key);
    Rows rows;
    for (int row = cells.LowerBound(1); row <= cells.UpperBound(1); ++row) {
        rows.emplaceBack();
        for (int column = 0; column <= cells.UpperBound(2); ++column)
            rows.back() << cells.Get(row, column).toString();
    }
    return rows;
}

Rows columnsOf(const Rows &rows, const QList<int> &columns) {
    Rows result;
    for (const QStringList &row : rows) {
        result.emplaceBack();
        for (int column : columns)
            result.back() << row[column];
    }
    return result;
}

QList<int> range(int first, int last) {
    QList<int> numbers;
    while (first <= last)
        numbers << first++;
    return numbers;
}

/// The cells of each temperature, in the order of the thicknesses where there are any.
Rows temperatureRows(const QString &key, int matID, const QStringList &fields, bool bands) {
    const QString order = bands ? " order by temp, thickness" : " order by temp";
    const auto table = modDBase::dbMain()->OpenRecordset("select * from " + key +
                                                         " where matID = " + QString::number(matID) + order);
    Rows rows;
    for (; !table->Eof(); table->MoveNext()) {
        const QString temperature = cellText(table->Fields(QStringLiteral("temp")));
        if (rows.isEmpty() || rows.back()[0] != temperature) rows << QStringList(temperature);
        for (const QString &field : fields)
            rows.back() << cellText(table->Fields(field));
    }
    return rows;
}

/// One line of words with one blank between two of them.
QString words(QString text) {
    return text.replace('|', ' ').simplified();
}

/// Looks for texts one behind the other.
class Reader {
public:
    explicit Reader(QString text)
        : m_text(std::move(text)) {}

    bool reaches(const QString &text) {
        const qsizetype found = m_text.indexOf(text, m_at);
        if (found >= 0) m_at = found + text.size();
        return found >= 0;
    }

private:
    QString m_text;
    qsizetype m_at = 0;
};

class ReportFiles : public Reports {
protected:
    void save() {
        actRepMain report;
        const Printing::Document &document = report.Run();
        Printing::savePdf(document, path("pdf"));
        Printing::saveRtf(document, path("rtf"));
        Printing::saveText(document, path("txt"));
    }
    QString path(const QString &extension) const { return m_folder.filePath("report." + extension); }
    QByteArray bytes(const QString &extension) const {
        QFile file(path(extension));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// The title of a table or block, and below it these rows.
    void expect(const QString &title, const Rows &rows) { m_parts << std::pair(title, rows); }

    void readBack() {
        Reader pdf(words(pdfTool("pdftotext", {"-layout", path("pdf"), "-"})));
        Reader text(words(QString::fromUtf8(bytes("txt"))));
        const RtfContent rtf = RtfReader::read(bytes("rtf"));
        auto rtfRow = rtf.rows.begin();
        for (const auto &[title, rows] : m_parts) {
            EXPECT_TRUE(pdf.reaches(title)) << "PDF: " << qPrintable(title);
            EXPECT_TRUE(text.reaches(title)) << "text: " << qPrintable(title);
            EXPECT_TRUE(rtf.paragraphs.contains(title)) << "RTF: " << qPrintable(title);
            for (const QStringList &row : rows) {
                const QString line = row.join(' ').simplified();
                EXPECT_TRUE(pdf.reaches(line)) << "PDF: " << qPrintable(title + ": " + line);
                EXPECT_TRUE(text.reaches(line)) << "text: " << qPrintable(title + ": " + line);
                const auto found = std::find(rtfRow, rtf.rows.end(), row);
                EXPECT_TRUE(found != rtf.rows.end()) << "RTF: " << qPrintable(title + ": " + line);
                if (found != rtf.rows.end()) rtfRow = found + 1;
            }
        }
    }

private:
    QTemporaryDir m_folder;
    QList<std::pair<QString, Rows>> m_parts;
};

} // namespace

TEST_F(ReportFiles, HoldEveryCellOfARichGrade) {
    open(SampleGrades::P265GH);
    tickAll();
    save();

    const Rows composition = unboundRows(*material, "ChemComp");
    expect("Chemical Composition", columnsOf(composition, range(0, 11)));
    expect("Chemical composition continued...", columnsOf(composition, {0, 12, 13, 14}));
    expect("Other Elements", {});
    expect("Cr + Cu + Mo + Ni max 0,70 %", {});
    expect("Mechanical Properties", {});
    expect("Mechanical properties at room temperature", unboundRows(*material, "MechProp"));
    expect("Minimum values for Rp0,2 [MPa] at elevated temperature",
           temperatureRows("Rp02", SampleGrades::P265GH, {"Rp02"}, true));
    // its last column holds no value
    expect("Creep properties", columnsOf(unboundRows(*material, "CreepProp"), range(0, 5)));
    expect("Impact Energy", {});
    expect("Impact energy", temperatureRows("ImpEnergy", SampleGrades::P265GH, {"kvLong", "kvTrans"}, false));
    expect("Physical Properties", {});
    expect("Modulus of elasticity", temperatureRows("ModElast", SampleGrades::P265GH, {"ModElast"}, false));
    expect("Thermal expansion",
           temperatureRows("ThermExp", SampleGrades::P265GH, {"ThermExp", "ThermExpDiff"}, false));
    expect("Thermal conductivity", temperatureRows("ThermCond", SampleGrades::P265GH, {"ThermCond"}, false));
    expect("Specific thermal capacity", temperatureRows("SpecThermCap", SampleGrades::P265GH,
                                                        {"SpecThermCap", "SpecThermCapDiff"}, false));
    expect("Specific electrical resistance",
           temperatureRows("SpecElecRes", SampleGrades::P265GH, {"SpecElecRes"}, false));
    expect("Additional Information...", {});
    readBack();

    const QString text = QString::fromUtf8(bytes("txt"));
    for (const char *note :
         {"b) Cr + Cu + Mo max 0,70 %.", "Values apply to the normalized condition.",
          "*) Values in brackets involve extended extrapolation.", "Stress relieving 550 to 600 °C."})
        EXPECT_TRUE(text.contains(QString::fromUtf8(note))) << note;
}

TEST_F(ReportFiles, HoldTheColumnsThatAPageHasNoRoomForBelowTheTable) {
    open(SampleGrades::X5CrNi);
    tick({"Ref", "MechProp"});
    save();
    const Rows rows = unboundRows(*material, "MechProp");
    ASSERT_EQ(rows[0].size(), 12);
    expect("Mechanical properties at room temperature", columnsOf(rows, range(0, 8)));
    expect("Mechanical properties at room temperature continued...", columnsOf(rows, {0, 9, 10, 11}));
    readBack();
}

TEST_F(ReportFiles, HoldTheGraphWithTheNamesOfItsCurves) {
    frmMaterial2 &window = open(SampleGrades::P265GH);
    window.iReportType = ReportKind::Graph;
    const auto graphText = [&](const QString &key) {
        window.ShowTable(key);
        save();
        return words(pdfTool("pdftotext", {"-layout", path("pdf"), "-"}));
    };
    const QString bands = graphText("Rp02");
    Reader reader(bands);
    for (const char *text :
         {"Mechanical Properties", "Minimum values for Rp0,2 [MPa] at elevated temperature",
          "Temperature [°C]", "( ) - 16mm", "(16) - 40mm"})
        EXPECT_TRUE(reader.reaches(QString::fromUtf8(text))) << text;
    EXPECT_TRUE(bands.contains("(150) - 250mm"));
    EXPECT_FALSE(bands.contains("Chemical"));
    EXPECT_FALSE(graphText("ModElast").contains("ModElast"));
}
