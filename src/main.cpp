// The program: says who it is, shows the start window, and runs until its last window is gone.
#include "platform/forms/application.h"
#include "start/program_start.h"

int main(int argc, char **argv) {
    Application application(argc, argv);
    ProgramStart::prepare(application, Application::applicationDirPath());
    ProgramStart::begin();
    return application.run();
}
