// From the start window to the selected grades.
#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

#include "platform/forms/default_instance.h"
#include "platform/forms/form.h"
#include "start/frmSplash.h"
#include "tour/tour.h"

void startProgram(Tour &tour) {
    auto &splash = DefaultInstance<frmSplash>();
    tour.picture("start-window", splash);
    tour.press(splash, Qt::Key_Space);
    tour.picture("search-empty");
}

void searchAndSelect(Tour &tour) {
    FormBase &search = tour.form("frmSearch");
    auto box = [&](int index) -> QLineEdit & {
        return tour.control<QLineEdit>(search, QStringLiteral("txtSearch(%1)").arg(index));
    };
    auto button = [&](const QString &name) -> QAbstractButton & {
        return tour.control<QAbstractButton>(search, name);
    };

    tour.type(box(1), "P265");
    tour.picture("search-name-P265");
    tour.press(box(1), Qt::Key_Return);
    tour.retype(box(1), "");
    tour.type(box(0), "EN 10028-2");
    tour.picture("search-standard");
    tour.retype(box(0), "");
    tour.type(box(6), "Plate");
    tour.picture("search-product-form");

    tour.boxes().driveForm([&](Form &form) {
        tour.picture("standard-window", form);
        form.Unload();
    });
    tour.click(button("cmdSelect(0)"));
    tour.boxes().driveForm([&](Form &form) {
        tour.picture("list-window", form);
        form.Unload();
    });
    tour.click(button("cmdSelect(1)"));
    tour.retype(box(6), "");

    for (const char *name : {"X2CrNiMo17-12-2", "P355NH", "16Mo3", "13CrMo4-5"}) {
        tour.retype(box(1), name);
        tour.press(box(1), Qt::Key_Return);
    }
    // the first tube has the widest creep table, the other one the narrowest column
    for (const auto &[standard, name] :
         {std::pair("EN 10216-2", "16Mo3"), std::pair("EN 10216-5", "X2CrNi18-9")}) {
        tour.retype(box(0), standard);
        tour.retype(box(1), name);
        tour.press(box(1), Qt::Key_Return);
    }
    tour.retype(box(0), "");
    tour.retype(box(1), "");
    tour.picture("selected-materials");

    auto &standards = tour.control<QComboBox>(search, "cmbChooseStd");
    standards.setCurrentIndex(2);
    tour.picture("search-asme");
    standards.setCurrentIndex(0);
}
