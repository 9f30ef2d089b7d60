// What the main report is made of: its places, its header, its pictures.
#include "reports/actRepMain.h"
#include "tests/program/reports_fixture.h"
#include "tests/support/gui.h"

namespace {

class MainReport : public Reports {
protected:
    void printOnly(const QStringList &keys) {
        tick(keys);
        report = std::make_unique<actRepMain>();
        report->Run();
    }
    bool shows(const char *section) const { return report->Sections(QLatin1String(section)).Visible; }
    QString headerText(const char *field) const { return controlOf(*report, "ReportHeader", field).Text; }

    std::unique_ptr<actRepMain> report;
};

} // namespace

TEST_F(MainReport, FillsItsPlacesWithoutAGap) {
    open(SampleGrades::X5CrNi);
    struct Case {
        QStringList keys;
        QStringList headings;
        QStringList shown;
    };
    const QStringList places{"ghChemComp",  "ghMechProp",  "ghElevated1", "ghElevated2", "ghElevated3",
                             "ghCreepProp", "ghImpEnergy", "ghPhysProp1", "ghPhysProp2", "ghPhysProp3",
                             "ghPhysProp4", "ghPhysProp5", "ghAddInfo"};
    const Case cases[] = {
        {{"Ref"}, {}, {}},
        {{"Rm", "ThermCond"},
         {"1 Mechanical Properties", "2 Minimum values for Rm [MPa] at elevated temperature",
          "1 Physical Properties", "2 Thermal conductivity"},
         {"ghMechProp", "ghElevated1", "ghPhysProp1"}},
        {{"Rp02", "Rp10", "Rm", "ModElast", "ThermExp", "ThermCond", "SpecThermCap", "SpecElecRes"},
         {"1 Mechanical Properties", "2 Minimum values for Rp0,2 [MPa] at elevated temperature",
          "2 Minimum values for Rp1,0 [MPa] at elevated temperature",
          "2 Minimum values for Rm [MPa] at elevated temperature", "1 Physical Properties",
          "2 Modulus of elasticity", "2 Thermal expansion", "2 Thermal conductivity",
          "2 Specific thermal capacity", "2 Specific electrical resistance"},
         {"ghMechProp", "ghElevated1", "ghElevated2", "ghElevated3", "ghPhysProp1", "ghPhysProp2",
          "ghPhysProp3", "ghPhysProp4", "ghPhysProp5"}}};
    for (const Case &c : cases) {
        printOnly(c.keys);
        EXPECT_EQ(headingsOf(report->document()), c.headings) << qPrintable(c.keys.join(' '));
        for (const QString &place : places)
            EXPECT_EQ(report->Sections(place).Visible, c.shown.contains(place))
                << qPrintable(c.keys.join(' ') + ": " + place);
        EXPECT_TRUE(material->colBoundTables().isEmpty() && material->colUnBoundTables().isEmpty());
    }
}

TEST_F(MainReport, CreepPropertiesAloneStandUnderTheHeadingOfTheirGroup) {
    open(SampleGrades::P265GH);
    printOnly({"CreepProp"});
    EXPECT_EQ(headingsOf(report->document()), QStringList({"1 Mechanical Properties", "2 Creep properties"}));
    EXPECT_TRUE(shows("ghCreepProp"));
}

TEST_F(MainReport, AdditionalInformationIsPrintedWhenTickedAndThere) {
    open(SampleGrades::P265GH);
    printOnly({"AddInfo"});
    EXPECT_EQ(headingsOf(report->document()), QStringList("1 Additional Information..."));
    EXPECT_TRUE(controlOf(*report, "ghAddInfo", "txtAddInfo").Text.contains("Weldability"));
    printOnly({"Ref"});
    EXPECT_FALSE(shows("ghAddInfo"));
    material->setAddInfo({});
    printOnly({"AddInfo"});
    EXPECT_FALSE(shows("ghAddInfo"));
}

TEST_F(MainReport, TheSecondProductFormIsLeftOut) {
    open(SampleGrades::P265GH);
    const std::pair<QStringList, QString> cases[] = {
        {{"A"}, "A."}, {{"A", "B"}, "A."}, {{"A", "B", "C"}, "A, C."}, {{"A", "B", "C", "D"}, "A, C, D."}};
    for (const auto &[forms, text] : cases) {
        material->setProductForms(forms);
        printOnly({});
        EXPECT_EQ(headerText("txtProdForm"), text);
    }
}

TEST_F(MainReport, PicturesFollowTheKindOfOutput) {
    open(SampleGrades::P265GH);
    struct Case {
        bool toFile;
        qint16 format;
        bool logo;
        bool icons;
        const char *title;
    };
    const Case cases[] = {{false, 0, true, true, "     elmar-PED"},
                          {true, 0, true, false, "     elmar-PED"},
                          {true, 1, false, false, "Velmar-PED"},
                          {true, 2, false, false, "Velmar-PED"}};
    for (const Case &c : cases) {
        report = std::make_unique<actRepMain>();
        report->bSaveToFile = c.toFile;
        report->iSaveFormat = c.format;
        if (c.toFile) modal().chooseFile(QString());
        report->Run();
        EXPECT_EQ(controlOf<Printing::Control>(*report, "ReportHeader", "imgVelmar").Visible, c.logo);
        EXPECT_EQ(headerText("lblVelmar"), QLatin1String(c.title));
        for (const auto &[section, icon] :
             {std::pair("ghChemComp", "imgIcon1"), std::pair("ghMechProp", "imgIcon2"),
              std::pair("ghImpEnergy", "imgIcon3"), std::pair("ghPhysProp1", "imgIcon4"),
              std::pair("ghAddInfo", "imgIcon5")})
            EXPECT_EQ(controlOf<Printing::Control>(*report, section, icon).Visible, c.icons) << icon;
        EXPECT_FALSE(controlOf<Printing::Control>(*report, "ghMechProp", "imgIcon6").Visible);
    }
}

TEST_F(MainReport, GraphAndDesignValuesStandAlone) {
    frmMaterial2 &window = open(SampleGrades::P265GH);
    window.ShowTable("Design");
    tickAll();
    for (const auto &[type, heading] :
         {std::pair(1, "1 Mechanical Properties"), std::pair(2, "1 Design Values")}) {
        window.iReportType = static_cast<ReportKind>(type);
        report = std::make_unique<actRepMain>();
        report->Run();
        EXPECT_EQ(headingsOf(report->document()), QStringList(heading));
        EXPECT_TRUE(material->colUnBoundTables().isEmpty());
    }
}
