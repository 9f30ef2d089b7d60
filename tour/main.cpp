// Uses the real windows as a person would and leaves numbered pictures and saved files.
//   velmar_tour FOLDER [--dark]     in the light theme, or in a dark one
#include <cstdio>
#include <cstring>

#include <QDir>
#include <QIcon>

#include "data/modDBase.h"
#include "data/program_version.h"
#include "platform/forms/application.h"
#include "platform/forms/screen.h"
#include "platform/runtime/regional_settings.h"
#include "start/program_start.h"
#include "tour/dark_theme.h"
#include "tour/tour.h"

int main(int argc, char **argv) {
    const bool dark = argc == 3 && std::strcmp(argv[2], "--dark") == 0;
    if (argc != 2 && !dark) {
        std::fprintf(stderr, "usage: velmar_tour FOLDER [--dark]\n");
        return 2;
    }
    Application application(argc, argv);
    if (dark) useDarkTheme();
    ProgramVersion::apply(Application::applicationDirPath());
    ProgramStart::installActions();
    RegionalSettings settings;
    settings.shortDateFormat = "yyyy-MM-dd";
    RegionalSettings::setCurrent(settings);

    Screen::setSizeForTest({1280, 1024});
    Application::setWindowIcon(QIcon(":/velmar/app/velmar-ped.svg"));

    Tour tour(QString::fromLocal8Bit(argv[1]));
    startProgram(tour);
    makeCardOfNothing(tour);
    searchAndSelect(tour);
    findByValue(tour);
    makeCards(tour);
    showPmaIndex(tour);
    readMaterials(tour);
    showTablesAndGraphs(tour);
    designValues(tour);
    compareGrades(tour);
    valuesOverTemperature(tour);
    printAndSave(tour);
    showAbout(tour);
    readHelp(tour);
    useSmallScreens(tour);
    useAScreenWithPanels(tour);
    Screen::setSizeForTest({1280, 1024});
    walkTheExample(tour);
    return 0;
}
