#include "start/frmAbout.h"

#include <QLabel>
#include <QPushButton>
#include <QTextEdit>

#include "platform/forms/default_instance.h"
#include "platform/forms/help_context.h"
#include "platform/forms/image_box.h"
#include "platform/forms/placement.h"
#include "platform/runtime/app.h"
#include "platform/runtime/regional_settings.h"
#include "search/frmSearch.h"
#include "shell/provider.h"
#include "start/frmSplash.h"

namespace {

const QString Advice = QStringLiteral(
    "Questions, and errors that you find, are welcome: please tell the version and the date of "
    "the last update above, and where an error log was written, send a copy of it.");

} // namespace

frmAbout::frmAbout()
    : Form("frmAbout")
    , imgLogo(named(new ImageBox(this), "imgLogo"))
    , lblTitle(named(new QLabel(this), "lblTitle"))
    , lblVersion(named(new QLabel(this), "lblVersion"))
    , lblCopyright(named(new QLabel(this), "lblCopyright"))
    , lblLastUpdated(named(new QLabel(this), "lblLastUpdated"))
    , txtContact(named(new QTextEdit(this), "txtContact", "Contact"))
    , cmdOK(named(new QPushButton("OK", this), "cmdOK", "OK")) {
    setSizable(false);
    HelpContext::set(*this, "How_To_Contact_Us.htm");
    setMinMaxButtons(false, false);
    setScaleSize(7500, 4800);
    imgLogo->setPicture(":/velmar/app/velmar-ped.svg");
    place(imgLogo, 240, 240, 1200, 1200);
    QFont titleFont = lblTitle->font();
    titleFont.setPointSize(16);
    titleFont.setBold(true);
    lblTitle->setFont(titleFont);
    place(lblTitle, 1680, 240, 5580, 480);
    place(lblVersion, 1680, 780, 5580, 300);
    place(lblLastUpdated, 1680, 1110, 5580, 300);
    lblCopyright->setWordWrap(true);
    lblCopyright->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    place(lblCopyright, 1680, 1470, 5580, 600);
    txtContact->setReadOnly(true);
    txtContact->setTabChangesFocus(true);
    txtContact->setPlainText(Provider::text() + "\n\n" + Advice);
    place(txtContact, 240, 2190, 7020, 1860);
    place(cmdOK, 5940, 4230, 1320, 390);
    setDefaultButton(cmdOK);
    setCancelButton(cmdOK);
    connect(cmdOK, &QPushButton::clicked, this, [this] { Unload(); });
}

void frmAbout::Form_Load() {
    setCaption("About " + App::current().title);
    lblVersion->setText(frmSplash::versionText());
    lblTitle->setText(App::current().title);
    lblCopyright->setText(frmSplash::copyrightText());
    lblLastUpdated->setText("Last Updated - " + RegionalSettings::current().dateText(
                                                    DefaultInstance<frmSearch>().mLatestRevision));
}
