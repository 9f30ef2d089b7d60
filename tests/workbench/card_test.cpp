// Material Card in its real window: the same card as the program without windows makes, faults beside the
// boxes, and what belongs to a grade.
#include <QClipboard>
#include <QFile>
#include <QProcess>

#include "data/modDBase.h"
#include "platform/dao/database.h"
#include "shell/main_menu.h"
#include "tests/support/csv_table.h"
#include "tests/support/raising_through_qt.h"
#include "tests/workbench/workbench_fixture.h"
#include "workbench/frmCard.h"

namespace {

class Card : public WorkbenchFixture {
protected:
    frmCard &window() { return open<frmCard>(ToolsEntry::MaterialCard); }

    static QString ofProgramWithoutWindows(const QStringList &words) {
        QProcess process;
        process.start(BINARY_FOLDER "/velmar-values",
                      QStringList{"--database", modDBase::dbMain()->Name(), "card"} + words);
        process.waitForFinished();
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return QString::fromLatin1(process.readAllStandardOutput());
    }
    static QString shown(const frmCard &window) { return window.txtCard->toPlainText(); }
};

} // namespace

TEST_F(Card, TellsHowToSelectAGradeWhereNoneIs) {
    frmCard &card = window();
    EXPECT_TRUE(card.lblEmpty->isVisible());
    EXPECT_FALSE(card.cboGrade->isVisible());
    select({2, 1});
    comeBack(card);
    EXPECT_FALSE(card.lblEmpty->isVisible());
    EXPECT_TRUE(card.txtCard->isVisible());
    EXPECT_TRUE(card.cboGrade->currentText().startsWith("P265GH"));
    select({});
    comeBack(card);
    EXPECT_TRUE(card.lblEmpty->isVisible());
}

TEST_F(Card, IsThatOfTheProgramWithoutWindows) {
    select({2});
    frmCard &card = window();
    EXPECT_EQ(shown(card), ofProgramWithoutWindows({"#2", "--for", "calculix", "--units", "si"}));
    type(card.txtPoisson, "0,3");
    type(card.txtDensity, "7850");
    const QString csvRow = "2,20,";
    QFile file(SOURCE_FOLDER "/sample/csv/ModElast.csv");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = file.readAll();
    const QString elasticity = text.section("\n" + csvRow, 1).section('\n', 0, 0).trimmed();
    EXPECT_TRUE(shown(card).contains("\n" + QString::number(elasticity.toInt() / 100.0) + "E+11, 0.3, 20\n"))
        << elasticity.toStdString();
    card.cboYield->setCurrentIndex(1);
    EXPECT_EQ(card.lblBand->text(), "Choose a thickness band.");
    card.cboBand->setCurrentIndex(1);
    EXPECT_EQ(card.lblBand->text(), "");
    QStringList words{"#2",   "--poisson",   "0,3",  "--density", "7850", "--yield",
                      "Rp02", "--thickness", "16,5", "--units",   "si",   "--for"};
    EXPECT_EQ(shown(card), ofProgramWithoutWindows(words + QStringList{"calculix"}));
    card.cboFormat->setCurrentIndex(1);
    card.cboUnits->setCurrentIndex(1);
    words.replace(10, "mm");
    EXPECT_EQ(shown(card), ofProgramWithoutWindows(words + QStringList{"mapdl"}));
    click(card.cmdCopy);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), shown(card));
}

TEST_F(Card, WhatIsTypedBelongsToItsGradeAndFaultsStandBeside) {
    select({1, 2});
    frmCard &card = window();
    EXPECT_EQ(card.txtPoisson->text(), "");
    type(card.txtPoisson, "0.5");
    type(card.txtDensity, "7.85");
    EXPECT_EQ(card.lblPoisson->text(), "Poisson's ratio is a number from 0 to below 0.5.");
    EXPECT_EQ(card.lblDensity->text(), "The density is a number in kg/m³ from 500 to 25000.");
    EXPECT_EQ(card.txtDensity->accessibleDescription(), card.lblDensity->text());
    EXPECT_FALSE(shown(card).contains("*ELASTIC"));
    retype(card.txtPoisson, "0.3");
    EXPECT_TRUE(shown(card).contains("*ELASTIC"));
    card.cboGrade->setCurrentIndex(1);
    EXPECT_EQ(card.txtPoisson->text(), "");
    EXPECT_EQ(card.lblDensity->text(), "");
    EXPECT_FALSE(shown(card).contains("*ELASTIC"));
    card.cboGrade->setCurrentIndex(0);
    EXPECT_EQ(card.txtPoisson->text(), "0.3");
    card.cboFormat->setCurrentIndex(1);
    card.cboUnits->setCurrentIndex(1);
    card.Unload();
    deleteUnloaded();
    frmCard &again = window();
    EXPECT_EQ(again.txtPoisson->text(), "");
    EXPECT_EQ(again.cboFormat->currentIndex(), 1);
    EXPECT_EQ(again.cboUnits->currentIndex(), 1);
}

TEST_F(Card, TheCurrentMaterialComesFirst) {
    select({1, 2, 3});
    main().mCurrent = main().colMaterials.Item(2);
    frmCard &card = window();
    EXPECT_TRUE(card.cboGrade->itemText(0).startsWith("P265GH"));
    EXPECT_EQ(card.cboGrade->currentIndex(), 0);
    card.cboGrade->setCurrentIndex(2);
    const QString chosen = card.cboGrade->currentText();
    comeBack(card);
    EXPECT_EQ(card.cboGrade->currentText(), chosen);
    main().mCurrent = main().colMaterials.Item(1);
    comeBack(card);
    EXPECT_TRUE(card.cboGrade->currentText().startsWith("P235GH"));
}

TEST_F(Card, IsSavedWholeOrNotAtAll) {
    select({2});
    frmCard &card = window();
    const QString path = program().folder() + "/card";
    modal().chooseFile(path);
    click(card.cmdSave);
    EXPECT_EQ(modal().lastAsked().defaultExt, ".inp");
    QFile file(path + ".inp");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromLatin1(file.readAll()), shown(card));
    modal().chooseFile("");
    click(card.cmdSave);
    QDir(program().folder()).mkdir("taken.inp");
    modal().chooseFile(program().folder() + "/taken.inp");
    raisingThroughQt([&] { click(card.cmdSave); });
    const QList<RuntimeError> faults = takeFaults();
    ASSERT_EQ(faults.size(), 1);
    EXPECT_EQ(faults.first().number(), 75);
}
