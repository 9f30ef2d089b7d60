// Reports on the screen and in files.
#include <QDir>

#include "platform/forms/form.h"
#include "platform/forms/msg_box.h"
#include "tour/tour.h"

namespace {

QString save(Tour &tour, const QString &name, int format) {
    const QString file = tour.folder() + '/' + name;
    tour.boxes().driveForm([&, format](Form &form) {
        if (format == 1) tour.picture("save-selection", form);
        tour.click(form, QStringLiteral("optFormat(%1)").arg(format));
        tour.click(form, "cmdSavePrint");
    });
    tour.boxes().chooseFile(file);
    tour.boxes().answerMsgBox(vbOK);
    tour.menu("mnuFileElem(2)");
    return file;
}

/// More columns than fit across the page.
void saveDesignValues(Tour &tour) {
    FormBase &window = tour.windowOf("EN 10216-2");
    const QString file = tour.folder() + "/design-values.pdf";
    tour.boxes().driveForm([&](Form &form) {
        tour.picture("save-design-values", form);
        tour.click(form, "cmdSave(0)");
    });
    tour.boxes().chooseFile(file);
    tour.boxes().answerMsgBox(vbOK);
    tour.click(window, "cmdPrintSave(4)");
    Tour::pagePictures(file);
}

void saveGraph(Tour &tour) {
    FormBase &window = tour.windowOf("P265GH");
    tour.menu("mnuViewMechElem(1)");
    tour.click(window, "CommandShowGraph");
    const QString file = tour.folder() + "/graph.pdf";
    tour.boxes().chooseFile(file);
    tour.boxes().answerMsgBox(vbOK);
    tour.click(window, "cmdPrintSave(0)");
    Tour::pagePictures(file);
    tour.click(window, "CommandShowTable");
}

} // namespace

void printAndSave(Tour &tour) {
    tour.menu("mnuWindowElem(0)");
    tour.windowOf("P265GH");
    tour.boxes().driveForm([&](Form &form) {
        tour.picture("print-selection", form);
        tour.click(form, "cmdSavePrint");
    });
    tour.boxes().driveForm([&](Form &form) {
        tour.picture("preview", form);
        form.Unload();
    });
    tour.menu("mnuFileElem(3)");

    Tour::pagePictures(save(tour, "P265GH.pdf", 0));
    save(tour, "P265GH.rtf", 1);
    save(tour, "P265GH.txt", 2);
    tour.windowOf("X2CrNiMo17-12-2");
    Tour::pagePictures(save(tour, "X2CrNiMo17-12-2.pdf", 0));
    saveDesignValues(tour);
    saveGraph(tour);
}
