// main() of the test programs that open windows: they are drawn off screen.
#include <gtest/gtest.h>

#include <optional>

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

#include "platform/forms/application.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/form.h"
#include "platform/forms/forms.h"
#include "platform/forms/mdi_form.h"
#include "tests/support/gui.h"
#include "tests/support/qt_warnings.h"

namespace {

std::optional<ModalSeam> seam;
QList<RuntimeError> faults;

/// Each test begins without forms, answers or errors left over from another.
class CleanWindows : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo &) override { seam->clear(); }

    void OnTestEnd(const ::testing::TestInfo &) override {
        EXPECT_EQ(seam->pending(), 0) << "answers were queued that nothing asked for";
        for (const RuntimeError &fault : takeFaults())
            ADD_FAILURE() << "run-time error " << fault.number() << ": " << qPrintable(fault.description());
        for (FormBase &form : Forms())
            delete form.asWidget();
        deleteUnloaded();
    }
};

} // namespace

ModalSeam &modal() {
    return *seam;
}

QList<RuntimeError> takeFaults() {
    return std::exchange(faults, {});
}

void deleteUnloaded() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    onQtWarning([](const QString &message) { ADD_FAILURE() << "Qt warns: " << qPrintable(message); });
    Application application(argc, argv);
    seam.emplace();
    seam->setUnexpectedHandler(
        [](const QString &message) { ADD_FAILURE() << "nobody answers: " << qPrintable(message); });
    application.setFaultSeam([](const RuntimeError &error) { faults.append(error); });
    ::testing::UnitTest::GetInstance()->listeners().Append(new CleanWindows);
    return RUN_ALL_TESTS();
}
