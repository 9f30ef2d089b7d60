// Uses the real windows as a person would and leaves numbered pictures and saved files. The one argument is
// the folder for them.
#include <cstdio>

#include <QDir>
#include <QIcon>

#include "data/modDBase.h"
#include "platform/forms/application.h"
#include "platform/forms/screen.h"
#include "platform/runtime/regional_settings.h"
#include "shell/program_version.h"
#include "tests/tour/tour.h"

int main(int argc, char **argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: velmar_tour FOLDER\n");
        return 2;
    }
    Application application(argc, argv);
    ProgramVersion::apply(Application::applicationDirPath());
    RegionalSettings settings;
    settings.shortDateFormat = "yyyy-MM-dd";
    RegionalSettings::setCurrent(settings);

    Screen::setSizeForTest({1280, 1024});
    Application::setWindowIcon(QIcon(":/velmar/app/velmar-ped.svg"));

    Tour tour(QString::fromLocal8Bit(argv[1]));
    startProgram(tour);
    searchAndSelect(tour);
    showPmaIndex(tour);
    readMaterials(tour);
    showTablesAndGraphs(tour);
    designValues(tour);
    printAndSave(tour);
    showAbout(tour);
    readHelp(tour);
    useSmallScreens(tour);
    return 0;
}
