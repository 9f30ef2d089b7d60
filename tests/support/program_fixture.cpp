#include "tests/support/program_fixture.h"

#include <QDropEvent>
#include <QMimeData>

#include "platform/forms/default_instance.h"
#include "search/frmSearch.h"
#include "shell/mdiVelmar.h"

TestProgram &ProgramFixture::program() {
    if (!m_program) start();
    return *m_program;
}

mdiVelmar &ProgramFixture::main() {
    program();
    return mdiVelmar::instance();
}

frmSearch &ProgramFixture::search() {
    program();
    return DefaultInstance<frmSearch>();
}

void ProgramFixture::type(QWidget *box, const QString &text) {
    box->setFocus();
    QTest::keyClicks(box, text);
}

void ProgramFixture::drop(const QWidget *source, QWidget *target) {
    QMimeData data;
    data.setData("application/x-control-name", source->objectName().toUtf8());
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter); // a drop goes to what the drag has entered
    QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}
