#include "platform/runtime/app.h"

App &App::current() {
    static App app;
    return app;
}
