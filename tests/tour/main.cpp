// Uses the real windows as a person would and leaves numbered pictures and saved files. The one argument is
// the folder for them.
#include <cstdio>

#include <QDir>

#include "data/modDBase.h"
#include "platform/forms/application.h"
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

    Tour tour(QString::fromLocal8Bit(argv[1]));
    startProgram(tour);
    searchAndSelect(tour);
    readMaterials(tour);
    return 0;
}
