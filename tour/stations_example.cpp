// The worked example of the help: from a question to the report in the design file.
#include <QLineEdit>
#include <QTableView>

#include "platform/forms/default_instance.h"
#include "platform/forms/form.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/tdb_grid.h"
#include "start/frmSplash.h"
#include "tour/tour.h"

namespace {

void fill(Tour &tour, FormBase &form, const std::pair<const char *, const char *> &box) {
    tour.retype(tour.control<QLineEdit>(form, box.first), box.second);
}

void findPlates(Tour &tour) {
    tour.menu("mnuToolsElem(1)");
    Form &form = *tour.form("frmFindValue").as<Form>();
    form.resize(720, 400);
    for (const auto &box : {std::pair("txtTemperature(0)", "300"), std::pair("txtThickness(0)", "40"),
                            std::pair("txtLeast(0)", "180"), std::pair("txtProductForm", "Plate"),
                            std::pair("txtGroup", "1.2")})
        fill(tour, form, box);
    auto &rows = *tour.control<TDBGrid>(form, "tdbFound").findChild<QTableView *>();
    tour.press(rows, Qt::Key_Return);
    tour.press(rows, Qt::Key_Down);
    tour.press(rows, Qt::Key_Down);
    tour.press(rows, Qt::Key_Return);
    tour.picture("example-found", form);
    form.Unload();
    tour.settle();
}

void compareBoth(Tour &tour) {
    tour.menu("mnuToolsElem(0)");
    FormBase &form = tour.form("frmCompare");
    form.asWidget()->resize(640, 480);
    fill(tour, form, {"txtFilter", ""});
    fill(tour, form, {"txtTemperature", "300"});
    fill(tour, form, {"txtThickness", "40"});
    tour.picture("example-compared", *form.asWidget());
    form.Unload();
    tour.settle();
}

void saveDesignReport(Tour &tour) {
    tour.menu("mnuFileElem(0)");
    tour.menu("mnuViewElem(6)");
    FormBase &window = tour.windowOf("P355GH");
    tour.type(tour.control<QLineEdit>(window, "txtDesignTemp"), "320");
    tour.picture("example-design-values", *window.asWidget());
    const QString file = tour.folder() + "/P355GH-at-320.pdf";
    tour.boxes().driveForm([&](Form &form) { tour.click(form, "cmdSave(0)"); });
    tour.boxes().chooseFile(file);
    tour.boxes().answerMsgBox(vbOK);
    tour.click(window, "cmdPrintSave(4)");
    Tour::pagePictures(file);
}

} // namespace

void walkTheExample(Tour &tour) {
    tour.leave();
    tour.press(DefaultInstance<frmSplash>(), Qt::Key_Space);
    findPlates(tour);
    compareBoth(tour);
    saveDesignReport(tour);
}
