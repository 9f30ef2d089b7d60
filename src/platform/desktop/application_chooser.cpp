#include "platform/desktop/application_chooser.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/forms/msg_box.h"
#include "platform/forms/placement.h"

ApplicationChooser::ApplicationChooser(const QString &file)
    : Form(QStringLiteral("frmOpenWith"))
    , m_file(file)
    , m_applications(DesktopEntry::all())
    , lstApplications(
          named(new QListWidget, QStringLiteral("lstApplications"), QStringLiteral("Applications")))
    , cmdOpen(named(new QPushButton(QStringLiteral("&Open")), QStringLiteral("cmdOpen")))
    , cmdCancel(named(new QPushButton(QStringLiteral("&Cancel")), QStringLiteral("cmdCancel"))) {
    setCaption(QStringLiteral("Open With"));
    setMinMaxButtons(false, false);
    const QString question = m_applications.isEmpty()
                                 ? QStringLiteral("No application is installed that could open '%1'.")
                                 : QStringLiteral("Choose the application to open '%1':");
    auto *label = named(new QLabel(question.arg(QFileInfo(file).fileName())), QStringLiteral("lblQuestion"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    for (const DesktopEntry &application : m_applications)
        lstApplications->addItem(application.name());
    lstApplications->setCurrentRow(0);
    cmdOpen->setEnabled(!m_applications.isEmpty());

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOpen);
    buttons->addWidget(cmdCancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(lstApplications);
    layout->addLayout(buttons);
    setWidth(6000);
    setHeight(6000);

    setDefaultButton(cmdOpen);
    setCancelButton(cmdCancel);
    connect(cmdOpen, &QPushButton::clicked, this, &ApplicationChooser::choose);
    connect(lstApplications, &QListWidget::itemDoubleClicked, this, &ApplicationChooser::choose);
    connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(); });
}

void ApplicationChooser::choose() {
    const int row = lstApplications->currentRow();
    if (row < 0) return;
    const DesktopEntry application = m_applications.at(row);
    const QString file = m_file;
    Unload();
    if (!application.open(file))
        MsgBox(QStringLiteral("'%1' could not be started.").arg(application.name()), vbExclamation);
}
