#include "workbench/WorkbenchWindow.h"

#include <QShortcut>

#include "data/Material.h"
#include "data/modDBase.h"
#include "data/modFileHandler.h"
#include "platform/forms/event_procedure.h"
#include "platform/forms/help_context.h"
#include "platform/forms/screen.h"
#include "shell/HTMLHelp.h"
#include "shell/mdiVelmar.h"

namespace {

QString settingsFile() {
    return modFileHandler::GetUserPath(QStringLiteral("Workbench.ini"));
}

} // namespace

WorkbenchWindow::WorkbenchWindow(const QString &name, const QString &caption, const QString &topic)
    : Form(name, Kind::Beside) {
    setCaption(caption);
    setWindowIcon(QIcon(":/velmar/app/velmar-ped.svg"));
    HelpContext::set(*this, topic);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
            [topic] { EventProcedure::run([&topic] { HTMLHelp::ShowHelpTopic(1, topic); }); });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, [this] { Unload(); });
}

void WorkbenchWindow::Form_Load() {
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.beginGroup(Name());
    const QRect place = settings.value("place").toRect();
    if (place.width() > 100 && place.height() > 100) setGeometry(place);
    Screen::fit(*this);
    restore(settings);
}

void WorkbenchWindow::Form_Activate() {
    readSelection();
}

void WorkbenchWindow::Form_Unload(bool &) {
    keepSettings();
}

void WorkbenchWindow::keepSettings() {
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.beginGroup(Name());
    if (WindowState() == vbNormal) settings.setValue("place", geometry());
    keep(settings);
}

void WorkbenchWindow::readSelection() {
    if (!modDBase::dbMain()) return; // the program is on its way out
    QVector<Grades::Grade> selected;
    for (const auto &material : mdiVelmar::instance().colMaterials)
        selected << Grades::of(*material);
    const auto isSame = [](const Grades::Grade &one, const Grades::Grade &other) {
        return one.id == other.id;
    };
    const bool changed = !m_everRead || !std::equal(selected.begin(), selected.end(), m_selected.begin(),
                                                    m_selected.end(), isSame);
    m_everRead = true;
    m_selected = std::move(selected);
    if (changed) selectionChanged();
}
