#include "tests/support/qt_warnings.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QString>

namespace {

const std::vector<const char *> Allowed = {
    "This plugin does not support ",   // what a platform without a display cannot do
    "Unimplemented code.",             // a drag's end on that platform
    "  OpenType support missing for ", // a script that no font of the machine has
    "QStandardPaths: XDG_RUNTIME_DIR not set",
    "Detected locale ", // a machine whose environment names none
    "Detected system locale encoding ",
};

std::vector<const char *> expected;
QtMessageHandler others = nullptr;
std::function<void(const QString &)> told;

bool isOneOf(const std::vector<const char *> &beginnings, const QString &message) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](const char *beginning) { return message.startsWith(QLatin1String(beginning)); });
}

void judge(QtMsgType type, const QMessageLogContext &context, const QString &message) {
    if (type != QtWarningMsg && type != QtCriticalMsg)
        others(type, context, message);
    else if (!isOneOf(Allowed, message) && !isOneOf(expected, message))
        told(message);
}

} // namespace

void onQtWarning(std::function<void(const QString &message)> fault) {
    told = std::move(fault);
    if (const QtMessageHandler before = qInstallMessageHandler(judge); before != judge) others = before;
}

ExpectedQtWarnings::ExpectedQtWarnings(std::initializer_list<const char *> beginnings) {
    expected = beginnings;
}

ExpectedQtWarnings::~ExpectedQtWarnings() {
    expected.clear();
}
