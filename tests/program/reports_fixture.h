// Reports of the sample grades.
#pragma once

#include <gtest/gtest.h>

#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "material/frmMaterial2.h"
#include "platform/printing/report.h"
#include "shell/mdiVelmar.h"
#include "tests/support/program.h"

namespace SampleGrades {
constexpr int P265GH = 2;         // thickness bands, fourteen elements, creep values, every kind of note
constexpr int X5CrNi = 11;        // a room temperature table wider than the page; more than six design tables
constexpr int TubeMo3 = 23;       // a creep table wider than the page, with empty columns
constexpr int ReferenceOnly = 38; // no table at all
} // namespace SampleGrades

class Reports : public ::testing::Test {
protected:
    mdiVelmar &main() const { return mdiVelmar::instance(); }

    /// The grade in its window, current, with all its tables visited.
    frmMaterial2 &open(int matID) {
        material = program.material(matID);
        frmMaterial2 &window = program.open(material);
        main().SetCurrentMaterial(material);
        window.CheckTablesForRecords();
        return window;
    }

    /// Only the tables of these keys go into the report.
    void tick(const QStringList &keys) {
        for (int i = 0; i < TableVocabulary::TableCount; ++i)
            material->setPrintTable(i, keys.contains(TableVocabulary::GetShortTableName(i)));
    }
    void tickAll() {
        for (int i = 0; i < TableVocabulary::TableCount; ++i)
            material->setPrintTable(i, material->TableHasData(TableVocabulary::GetShortTableName(i)));
    }

    /// One sub-report of the current material, run by itself.
    template <class SubReport>
    std::unique_ptr<SubReport> runAlone(const QString &key) {
        material->colBoundTables() = material->colUnBoundTables() = QStringList(key);
        auto report = std::make_unique<SubReport>();
        report->Run();
        return report;
    }

    TestProgram program;
    std::shared_ptr<Material> material;
};

/// "1 Creep properties": the headings of the outline with their levels.
inline QStringList headingsOf(const Printing::Document &document) {
    QStringList result;
    for (const Printing::Heading &heading : document.headings)
        result << QString::number(heading.level) + ' ' + heading.text;
    return result;
}

/// The visible texts of a section whose controls' names begin with `prefix`, from left to right; line ends
/// are strokes.
inline QStringList textsOf(const Printing::Report &report, const QString &section, const QString &prefix) {
    std::vector<const Printing::TextControl *> controls;
    for (const auto &control : report.Sections(section).Controls) {
        const auto *text = dynamic_cast<const Printing::TextControl *>(control.get());
        if (text && text->Visible && text->Name.startsWith(prefix)) controls.push_back(text);
    }
    std::stable_sort(controls.begin(), controls.end(), [](auto *a, auto *b) { return a->Left < b->Left; });
    QStringList result;
    for (const auto *control : controls)
        result << QString(control->Text).replace("\r\n", "|");
    return result;
}

/// Nothing stands beyond the right margin.
inline void expectOnPaper(const Printing::Document &document) {
    for (const Printing::Page &page : document.pages)
        for (const Printing::Element &element : page.elements)
            EXPECT_LE(element.box.left() + element.box.width(), 853 + 10200) << qPrintable(element.text);
}

// The newer compiler takes the control for a part of the name that is given with it.
#if __has_cpp_attribute(gnu::no_dangling)
#define OUTLIVES_ITS_ARGUMENTS [[gnu::no_dangling]]
#else
#define OUTLIVES_ITS_ARGUMENTS
#endif

template <class ControlType = Printing::TextControl>
OUTLIVES_ITS_ARGUMENTS ControlType &controlOf(const Printing::Report &report, const char *section,
                                              const QString &name) {
    return report.Sections(QLatin1String(section)).Controls.Item<ControlType>(name);
}
