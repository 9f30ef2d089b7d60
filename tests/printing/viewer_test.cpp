// The window that shows a document, driven as a user does.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "platform/forms/msg_box.h"
#include "platform/printing/page_painter.h"
#include "platform/printing/page_view.h"
#include "platform/printing/viewer.h"
#include "tests/printing/test_report.h"
#include "tests/support/gui.h"
#include "tests/support/pdf_tool.h"
#include "tests/support/qt_warnings.h"

using namespace Printing;

namespace {

class ViewerTest : public ::testing::Test {
protected:
    ViewerTest()
        : report(stationReport(70))
        , viewer(report->Run())
        , view(*viewer.findChild<PageView *>())
        , found(*viewer.findChild<QLabel *>("found")) {
        viewer.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&viewer));
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    std::shared_ptr<TestReport> report;
    Viewer viewer;
    PageView &view;
    QLabel &found;
};

TEST_F(ViewerTest, OpensReadableAtTheTopOfTheFirstPage) {
    EXPECT_EQ(viewer.windowTitle(), "Yearbook");
    EXPECT_GT(view.zoom(), 0.8);
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
    EXPECT_TRUE(view.hasFocus());
    const QImage image = viewer.grab().toImage();
    EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() / 5), QColor(Qt::white));
}

TEST_F(ViewerTest, GoesPageByPageWithTheKeys) {
    auto *page = viewer.findChild<QSpinBox *>("page");
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(page->value(), 2);
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(page->value(), 3);
    press(Qt::Key_PageUp, Qt::ControlModifier);
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(page->value(), 1);
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
    press(Qt::Key_G, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "3");
    press(Qt::Key_Return);
    EXPECT_EQ(view.currentPage(), 2);
    EXPECT_TRUE(viewer.isVisible());
    EXPECT_EQ(page->text(), "3 of 3");
    EXPECT_TRUE(view.hasFocus());
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->singleStep());
}

TEST_F(ViewerTest, GoesPageByPageWhereAllPagesAreInView) {
    view.setZoom(0.1);
    for (const int page : {1, 2, 2, 1, 0}) {
        press(page < view.currentPage() ? Qt::Key_PageUp : Qt::Key_PageDown, Qt::ControlModifier);
        EXPECT_EQ(view.currentPage(), page);
    }
}

TEST_F(ViewerTest, ZoomsAndFits) {
    auto *zoom = viewer.findChild<QComboBox *>("zoom");
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
    const double wholePage = view.zoom();
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_GT(view.zoom(), wholePage);
    viewer.resize(viewer.width() - 200, viewer.height());
    QCoreApplication::processEvents();
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(view.zoom(), 1);
    EXPECT_EQ(zoom->currentText(), "100 %");
    zoom->setFocus();
    zoom->lineEdit()->selectAll();
    QTest::keyClicks(zoom->lineEdit(), "60");
    QTest::keyClick(zoom->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(view.zoom(), 0.6);
    EXPECT_TRUE(view.hasFocus());
    view.setZoom(50);
    EXPECT_EQ(view.zoom(), 5);
}

TEST(PageViewTest, ComesToRestAtEveryHeightWhenItFitsTheWidth) {
    TestReport report;
    place<Label>(report.AddSection(SectionType::Detail, "Detail"), "lbl", {0, 0, 3000, 250}, "text");
    const Document &document = report.Run();
    PageView view(document);
    view.show();
    // Where a page just fits, the scroll bar's own width would decide whether there must be one.
    for (int height = 640; height < 720; ++height) {
        view.resize(500, height);
        QCoreApplication::processEvents();
        EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0) << height;
        EXPECT_EQ(view.verticalScrollBar()->isVisible(), view.verticalScrollBar()->maximum() > 0) << height;
    }
}

TEST_F(ViewerTest, FindsTextForwardsAndBackwardsAndShowsWhere) {
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "BOTH is");
    EXPECT_EQ(found.text(), "1 of 10");
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(found.text(), "10 of 10");
    EXPECT_EQ(view.currentPage(), 1);
    press(Qt::Key_Return);
    EXPECT_EQ(found.text(), "1 of 10");
    // The match goes over a line end of the cell.
    QTest::keyClicks(QApplication::focusWidget(), "xyz");
    EXPECT_EQ(found.text(), "Not found");
    press(Qt::Key_Escape);
    EXPECT_TRUE(view.hasFocus());
    EXPECT_TRUE(viewer.isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(viewer.isVisible());
}

TEST(DocumentSearch, AMatchOverTwoLinesHasAnAreaOnEach) {
    const auto report = stationReport(7);
    const Document &document = report->Run();
    const std::vector<TextMatch> matches = findText(document, "twice and the");
    ASSERT_EQ(matches.size(), 1u);
    const std::vector<QRectF> areas = matchAreas(document, matches[0]);
    ASSERT_EQ(areas.size(), 2u);
    EXPECT_GT(areas[0].left(), areas[1].right());
    EXPECT_EQ(areas[0].bottom(), areas[1].top());
    for (const TextMatch &blank : findText(document, " "))
        EXPECT_FALSE(matchAreas(document, blank).empty());
    // "Pressures" stands behind a line end of its text.
    EXPECT_EQ(findText(document, "shade. Pressures").size(), 1u);
}

TEST(DocumentSearch, WhatAnEllipsisStandsForIsNotFound) {
    TestReport report;
    Section &detail = report.AddSection(SectionType::Detail, "Detail");
    auto &label = place<Label>(detail, "lbl", {0, 0, 1500, 250}, "abcdefghijklmnopqrstuvwxyz");
    label.CanGrow = label.WordWrap = false;
    const Document &document = report.Run();
    const QString shown = document.pages[0].elements[0].lines[0].text;
    ASSERT_TRUE(shown.endsWith(QChar(0x2026))) << shown.toStdString();
    const qsizetype hidden = shown.size() - 1;
    EXPECT_EQ(findText(document, label.Text.mid(hidden - 1, 1)).size(), 1u);
    EXPECT_EQ(findText(document, label.Text.mid(hidden, 1)).size(), 0u);
}

TEST_F(ViewerTest, PrintsAndSavesThroughItsHooks) {
    EXPECT_FALSE(viewer.findChild<QAction *>("save")->isVisible());
    int saved = 0;
    viewer.setSaveHandler([&] { ++saved; });
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(saved, 1);

    QTemporaryDir folder;
    const QString file = folder.filePath("a.pdf");
    viewer.setPrinterChooser([&](QPrinter &printer) {
        EXPECT_EQ(printer.docName(), report->DocumentName);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        return true;
    });
    press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(pdfTool("pdfinfo", {file}).contains("Pages:           3\n"));
}

TEST(PrintDialog, NamesTheFileInFull) {
    const QTemporaryDir folder;
    Document document = stationReport(1)->Run();
    document.title = "PED_16Mo3 5/6_1.5415";
    Viewer viewer(document);
    viewer.show();
    QString offered;
    QTimer::singleShot(0, [&] {
        auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        auto *name = dialog->findChild<QLineEdit *>("filename");
        offered = name->text();
        name->setText(folder.filePath("b_1.5415"));
        Q_EMIT name->editingFinished();
        for (QAbstractButton *button : dialog->findChild<QDialogButtonBox *>()->buttons())
            if (button->text().contains("Print")) return button->click();
    });
    viewer.findChild<QAction *>("print")->trigger();
    EXPECT_EQ(QFileInfo(offered).fileName(), "PED_16Mo3 5_6_1.5415.pdf");
    EXPECT_TRUE(pdfTool("pdfinfo", {folder.filePath("b_1.5415.pdf")}).contains("(A4)"));
}

TEST_F(ViewerTest, TellsThatThePrinterFailed) {
    QTemporaryDir folder;
    const ExpectedQtWarnings ofTheDevice{"QIODevice::seek", "QPainter::begin(): Returned false"};
    for (const QString &file : {folder.filePath("missing/a.pdf"), QStringLiteral("/dev/full")}) {
        viewer.setPrinterChooser([&](QPrinter &printer) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(file);
            return true;
        });
        modal().answerMsgBox(vbOK);
        press(Qt::Key_P, Qt::ControlModifier);
        EXPECT_EQ(modal().lastAsked().text, "Printer error") << qPrintable(file);
    }
}

TEST(PagePainter, HairlinesAreCrispAtEveryZoom) {
    TestReport report;
    Section &detail = report.AddSection(SectionType::Detail, "Detail");
    place<Label>(detail, "box", {0, 0, 3000, 3000}).Border = BorderStyles::all();
    const Document &document = report.Run();
    for (const double scale : {0.5, 1.0, 1.7}) {
        const QImage image = pageImage(document, 0, scale);
        const int y = int(scale * (850 + 1500) / 15);
        int dark = 0;
        for (int x = 0; x < image.width(); ++x) {
            const int grey = qGray(image.pixel(x, y));
            EXPECT_TRUE(grey == 0 || grey == 255) << "a grey edge at " << scale;
            dark += grey == 0;
        }
        EXPECT_EQ(dark, 2) << scale;
    }
}

} // namespace
