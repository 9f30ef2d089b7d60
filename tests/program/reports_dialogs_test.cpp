// From a command to a report: the two dialogs, the save dialog, the buttons of the windows.
#include <QAbstractButton>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QTemporaryDir>
#include <QTest>

#include "material/frmChart.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/status_bar.h"
#include "platform/runtime/app.h"
#include "reports/frmSave.h"
#include "reports/frmSelData.h"
#include "reports/report_commands.h"
#include "tests/program/reports_fixture.h"
#include "tests/support/gui.h"

namespace {

class ReportDialogs : public Reports {
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString status() const { return main().stbStatus->PanelText(1); }
    void command(int entry) {
        main().menu.mnuFileElem(entry).setEnabled(true);
        main().menu.mnuFileElem(entry).trigger();
    }
    static void click(QWidget *button) { QTest::mouseClick(button, Qt::LeftButton); }
    /// What is done in the dialog that the next command opens.
    void drive(const std::function<void(frmSelData &)> &act) {
        modal().driveForm([act](Form &form) { act(static_cast<frmSelData &>(form)); });
    }
    /// Answers the save dialog and the box with the file's name.
    void saveAs(const QString &name) {
        modal().chooseFile(path(name));
        modal().answerMsgBox(vbOK);
    }
    QByteArray start(const QString &name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.read(5) : QByteArray();
    }

    QTemporaryDir m_folder;
};

QStringList shownBoxes(const frmSelData &dialog) {
    QStringList captions;
    for (const auto &[index, box] : dialog.chkData)
        if (!box->isHidden()) captions << box->text();
    return captions;
}

/// In pixels, from the top of a box to that of the next.
int largestGap(const frmSelData &dialog) {
    int gap = 0;
    std::optional<int> last;
    for (const auto &[index, box] : dialog.chkData) {
        if (box->isHidden()) continue;
        if (last) gap = std::max(gap, box->y() - *last);
        last = box->y();
    }
    return gap;
}

} // namespace

TEST_F(ReportDialogs, OfferTheTablesWithData) {
    open(SampleGrades::X5CrNi);
    drive([](frmSelData &dialog) {
        EXPECT_EQ(dialog.Caption(), "Save X5CrNi18-10 As Text File - Select Data...");
        EXPECT_EQ(dialog.Left(), 4995); // 5000 in whole pixels
        EXPECT_EQ(dialog.Top(), 1500);
        click(dialog.cmdCancel);
    });
    command(2);
    const QString standing = status();
    EXPECT_FALSE(material->PrintTable(0)); // nothing is chosen by Cancel

    open(SampleGrades::P265GH);
    drive([](frmSelData &dialog) {
        EXPECT_TRUE(dialog.chkData(5)->isHidden()) << "Rp1,0, in the middle";
        EXPECT_LE(largestGap(dialog), 26) << "a hidden box has left its place empty";
        click(dialog.cmdCancel);
    });
    command(2);

    open(SampleGrades::ReferenceOnly);
    drive([&](frmSelData &dialog) {
        EXPECT_EQ(dialog.Caption(), "Print Reference only - Select Data...");
        EXPECT_EQ(dialog.cmdSavePrint->text(), "Print/Preview...");
        EXPECT_TRUE(dialog.framSave->isHidden());
        EXPECT_TRUE(status().startsWith("Select/de-select tables for printing"));
        EXPECT_EQ(shownBoxes(dialog), QStringList("References"));
        click(dialog.chkData(0));
        EXPECT_TRUE(dialog.chkData(0)->isChecked());
        dialog.close(); // its close box
    });
    command(3);
    EXPECT_EQ(status(), standing);
}

TEST_F(ReportDialogs, SaveWhatIsTickedInTheChosenFormat) {
    frmMaterial2 &window = open(SampleGrades::P265GH);
    const std::pair<const char *, const char *> formats[] = {
        {"a.pdf", "%PDF-"}, {"a.rtf", "{\\rtf"}, {"a.txt", "Velma"}};
    for (int format = 0; format < 3; ++format) {
        window.iReportType = ReportKind::DesignValues;
        drive([&](frmSelData &dialog) {
            EXPECT_EQ(window.iReportType, ReportKind::Tables);
            dialog.optFormat(format)->setChecked(true);
            dialog.chkData(1)->setChecked(false);
            saveAs(formats[format].first);
            click(dialog.cmdSavePrint);
        });
        command(2);
        EXPECT_TRUE(material->PrintTable(0));
        EXPECT_FALSE(material->PrintTable(1));
        EXPECT_TRUE(material->PrintTable(2));
        EXPECT_FALSE(material->PrintTable(5)); // hidden, for want of data
        EXPECT_EQ(start(formats[format].first), formats[format].second);
    }
    QFile text(path("a.txt"));
    ASSERT_TRUE(text.open(QIODevice::ReadOnly));
    const QString saved = QString::fromUtf8(text.readAll());
    EXPECT_TRUE(saved.contains("Velmar-PED") && saved.contains("Creep properties"));
    EXPECT_FALSE(saved.contains("Chemical"));
}

TEST_F(ReportDialogs, ThePrintCommandOpensThePreview) {
    open(SampleGrades::P265GH);
    drive([](frmSelData &dialog) {
        modal().driveForm([](Form &preview) {
            EXPECT_EQ(preview.Name(), "actRepMain");
            EXPECT_EQ(preview.Caption(), "Name : P265GH Number : 1.0425 Standard : EN 10028-2");
            EXPECT_TRUE(mdiVelmar::instance().stbStatus->PanelText(1).startsWith("Print Preview Window"));
            preview.setWindowState(vbMinimized);
            EXPECT_EQ(preview.WindowState(), vbNormal);
            preview.Unload();
        });
        click(dialog.cmdSavePrint);
    });
    main().ShowStatus(1);
    const QString standing = status();
    command(3);
    EXPECT_EQ(status(), standing);
}

TEST_F(ReportDialogs, TheSaveDialogOffersTheGradesName) {
    open(SampleGrades::P265GH);
    struct Case {
        const char *fileName;
        const char *filter;
        const char *extension;
    };
    const Case cases[] = {{"c:\\P265GH.pdf", "Portable Document Format (*.pdf)|*.pdf", ".pdf"},
                          {"c:\\P265GH.rtf", "Rich Text Format (*.rtf)|*.rtf", ".rtf"},
                          {"c:\\P265GH.txt", "Text Format (*.txt)|*.txt", ".txt"}};
    main().comDlg.DialogTitle = "Locate Velmar_PED.mdb..."; // as it is after a search at the start
    for (int format = 0; format < 3; ++format) {
        const QString saved = path("chosen_1.0425") + cases[format].extension;
        modal().clear();
        modal().chooseFile([&](const ModalSeam::Request &request) {
            EXPECT_EQ(request.title, "Save Report...");
            EXPECT_EQ(request.fileName, cases[format].fileName);
            EXPECT_EQ(request.initDir, "c:\\");
            EXPECT_EQ(request.filter, cases[format].filter);
            EXPECT_EQ(request.defaultExt, cases[format].extension);
            EXPECT_EQ(status(), "Choose directory and filename then press 'Save'");
            return path("chosen_1.0425");
        });
        modal().answerMsgBox(vbOK);
        ReportCommands::saveReport(format);
        EXPECT_EQ(modal().lastAsked().text, saved);
        EXPECT_EQ(modal().lastAsked().style, vbOKOnly);
        EXPECT_EQ(modal().lastAsked().title, App::current().title); // none of its own
        EXPECT_TRUE(QFile::remove(saved));
    }
}

TEST_F(ReportDialogs, CancelAndAFailedExportLeaveNothingAndSayNothing) {
    open(SampleGrades::P265GH);
    main().ShowStatus(1);
    const QString standing = status();

    modal().chooseFile(QString());
    ReportCommands::saveReport(0);
    EXPECT_EQ(modal().asked().size(), 1); // no box behind the dialog
    EXPECT_EQ(status(), standing);

    modal().chooseFile(QString());
    ReportCommands::saveReport(0, true);
    EXPECT_TRUE(status().startsWith("Enlarged Chart"));

    ASSERT_TRUE(QDir(m_folder.path()).mkdir("a.pdf"));
    saveAs("a.pdf"); // a folder of that name
    ReportCommands::saveReport(0);
    EXPECT_TRUE(QDir(path("a.pdf")).isEmpty());
    EXPECT_EQ(status(), standing);
}

TEST_F(ReportDialogs, DesignValuesNeedATemperature) {
    frmMaterial2 &window = open(SampleGrades::P265GH);
    window.ShowTable("Design");
    for (const char *text : {"", "-"}) {
        window.txtDesignTemp->setText(text);
        click(window.cmdPrintSave(3));
        click(window.cmdPrintSave(4));
        EXPECT_EQ(window.iReportType, ReportKind::Tables);
    }
    EXPECT_TRUE(modal().asked().isEmpty());

    window.txtDesignTemp->setText("100");
    modal().driveForm([&](Form &form) {
        auto &dialog = static_cast<frmSave &>(form);
        EXPECT_EQ(dialog.Caption(), "Save Design Values...");
        EXPECT_EQ(status(), "Select 'File Format' then press 'Save...'");
        EXPECT_EQ(window.iReportType, ReportKind::DesignValues);
        click(dialog.cmdSave(1));
    });
    click(window.cmdPrintSave(4));
    EXPECT_EQ(window.iReportType, ReportKind::Tables);

    modal().driveForm([&](Form &form) {
        auto &dialog = static_cast<frmSave &>(form);
        dialog.optFormat(2)->setChecked(true);
        saveAs("design.txt");
        click(dialog.cmdSave(0));
    });
    click(window.cmdPrintSave(4));
    QFile file(path("design.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("Design Values"));

    modal().driveForm([](Form &preview) { preview.Unload(); });
    click(window.cmdPrintSave(3));
    EXPECT_EQ(window.iReportType, ReportKind::DesignValues);
}

TEST_F(ReportDialogs, GraphsAreSavedAsPdfAndPrintedFromBothWindows) {
    frmMaterial2 &window = open(SampleGrades::P265GH);
    window.ShowTable("Rp02");
    click(window.CommandShowGraph);
    saveAs("graph.pdf");
    click(window.cmdPrintSave(0));
    EXPECT_EQ(window.iReportType, ReportKind::Graph);
    EXPECT_EQ(start("graph.pdf"), "%PDF-");
    modal().driveForm([](Form &preview) { preview.Unload(); });
    click(window.cmdPrintSave(1));

    window.iReportType = ReportKind::Tables;
    modal().driveForm([&](Form &form) {
        auto &chart = static_cast<frmChart &>(form);
        saveAs("enlarged.pdf");
        click(chart.cmdGraph(0));
        EXPECT_EQ(window.iReportType, ReportKind::Graph);
        EXPECT_TRUE(status().startsWith("Enlarged Chart"));
        modal().driveForm([](Form &preview) { preview.Unload(); });
        click(chart.cmdGraph(1));
        EXPECT_TRUE(status().startsWith("Enlarged Chart"));
        click(chart.cmdGraph(2));
    });
    click(window.cmdPrintSave(2));
    EXPECT_EQ(start("enlarged.pdf"), "%PDF-");
}
