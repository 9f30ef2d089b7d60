#include "workbench/frmCard.h"

#include <algorithm>

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QSignalBlocker>

#include "data/Material.h"
#include "data/modDBase.h"
#include "exchange/calculix_card.h"
#include "exchange/mapdl_card.h"
#include "platform/dao/database.h"
#include "platform/forms/common_dialog.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/whole_file.h"
#include "shell/mdiVelmar.h"

namespace {

struct CardFormat {
    QString (*text)(const MaterialCard &card);
    const char *filter;
    const char *extension;
};

const CardFormat Formats[] = {{calculixCard, "CalculiX / Abaqus (*.inp)|*.inp", ".inp"},
                              {mapdlCard, "Ansys MAPDL (*.mac)|*.mac", ".mac"}};

constexpr int CancelSelected = 32755;

const std::pair<QString, QString> Yields[] = {{"Rp02", "Rp0,2"}, {"Rp10", "Rp1,0"}};

qint16 currentID() {
    const auto &current = mdiVelmar::instance().mCurrent;
    return current ? current->ID() : qint16(0);
}

} // namespace

frmCard::frmCard()
    : WorkbenchWindow("frmCard", "Material Card", "Material_Card.htm")
    , CardControls(*static_cast<QWidget *>(this)) {
    resize(800, 600);
}

void frmCard::Form_Load() {
    SetToolTips(mdiVelmar::instance().bToolTips);
    showEmpty(true);
    WorkbenchWindow::Form_Load();
    connectControls();
}

void frmCard::connectControls() {
    connect(cboGrade, &QComboBox::currentIndexChanged, this, &frmCard::chooseGrade);
    connect(cboYield, &QComboBox::currentIndexChanged, this, &frmCard::chooseYield);
    for (const DropDownList *list : {cboFormat, cboUnits, cboBand})
        connect(list, &QComboBox::currentIndexChanged, this, &frmCard::showCard);
    for (const QLineEdit *box : {txtPoisson, txtDensity})
        connect(box, &QLineEdit::textChanged, this, &frmCard::showCard);
    connect(cmdCopy, &QPushButton::clicked, this, &frmCard::copyCard);
    connect(cmdSave, &QPushButton::clicked, this, &frmCard::saveCard);
}

void frmCard::SetToolTips(bool showTips) {
    setTips(showTips);
}

/// Another material has come to the front since: its card is wanted.
void frmCard::Form_Activate() {
    WorkbenchWindow::Form_Activate();
    if (m_current != currentID()) fillGrades();
}

void frmCard::selectionChanged() {
    fillGrades();
}

/// The current material first. The chosen one stays, unless another one has become the current one.
void frmCard::fillGrades() {
    const bool isSame = m_current == currentID();
    const qint16 before = isSame && m_source ? m_source->grade.id : qint16(0);
    m_current = currentID();
    QVector<Grades::Grade> grades = selected();
    std::stable_partition(grades.begin(), grades.end(),
                          [this](const Grades::Grade &grade) { return grade.id == m_current; });
    int chosen = 0;
    {
        const QSignalBlocker quiet(cboGrade);
        cboGrade->clear();
        for (const Grades::Grade &grade : grades) {
            if (grade.id == before) chosen = cboGrade->count();
            cboGrade->addItem((grade.name + " " + grade.number).trimmed() + "   " + grade.standard, grade.id);
        }
        cboGrade->setCurrentIndex(grades.isEmpty() ? -1 : chosen);
    }
    showEmpty(grades.isEmpty());
    chooseGrade();
}

void frmCard::chooseGrade() {
    if (cboGrade->currentIndex() < 0) {
        m_source.reset();
        return;
    }
    const auto id = static_cast<qint16>(cboGrade->currentData().toInt());
    if (!m_source || m_source->grade.id != id) {
        const auto &database = modDBase::dbMain();
        if (!database) throw RuntimeError(91);
        m_source = CardSource::read(*database, id);
        const QSignalBlocker quietPoisson(txtPoisson);
        const QSignalBlocker quietDensity(txtDensity);
        txtPoisson->setText(m_given[id].poisson);
        txtDensity->setText(m_given[id].density);
        fillYields();
    }
    showCard();
}

/// What the grade has, and the one that was wanted before, if that is among it.
void frmCard::fillYields() {
    {
        const QSignalBlocker quiet(cboYield);
        cboYield->clear();
        cboYield->addItem("None", QString());
        for (const auto &[key, text] : Yields)
            if (m_source->yieldKeys().contains(key)) cboYield->addItem(text, key);
        cboYield->setCurrentIndex(std::max(0, cboYield->findData(m_yieldKey)));
    }
    const QSignalBlocker quiet(cboBand);
    const QStringList bands = m_source->bands(cboYield->currentData().toString());
    cboBand->clear();
    cboBand->addItems(bands);
    cboBand->setCurrentIndex(-1);
    cboBand->setEnabled(!bands.isEmpty());
}

void frmCard::chooseYield() {
    m_yieldKey = cboYield->currentData().toString();
    fillYields();
    showCard();
}

CardChoice frmCard::choice() const {
    CardChoice choice;
    choice.units = cboUnits->currentIndex() == 1 ? UnitSystem::Mm : UnitSystem::Si;
    choice.poisson = txtPoisson->text();
    choice.density = txtDensity->text();
    choice.yieldKey = cboYield->currentData().toString();
    choice.band = cboBand->currentIndex() + 1;
    return choice;
}

void frmCard::showCard() {
    if (!m_source) return;
    m_given[m_source->grade.id] = {txtPoisson->text(), txtDensity->text()};
    showFault(txtPoisson, lblPoisson, MaterialCard::poissonFault(txtPoisson->text()));
    showFault(txtDensity, lblDensity, MaterialCard::densityFault(txtDensity->text()));
    const bool bandMissing = cboBand->count() > 0 && cboBand->currentIndex() < 0;
    lblBand->setText(bandMissing ? "Choose a thickness band." : QString());
    cboBand->setAccessibleDescription(lblBand->text());
    const MaterialCard card = MaterialCard::of(*m_source, choice());
    const QString text = Formats[std::max(0, cboFormat->currentIndex())].text(card);
    if (text == m_text) return;
    m_text = text;
    const int top = txtCard->verticalScrollBar()->value();
    txtCard->setPlainText(text);
    txtCard->verticalScrollBar()->setValue(top);
}

void frmCard::showFault(QLineEdit *box, QLabel *label, const QString &fault) {
    label->setText(fault.isEmpty() ? fault : fault + ".");
    box->setAccessibleDescription(label->text());
}

void frmCard::copyCard() const {
    QGuiApplication::clipboard()->setText(m_text);
}

void frmCard::saveCard() {
    const CardFormat &format = Formats[std::max(0, cboFormat->currentIndex())];
    CommonDialog dialog;
    dialog.DialogTitle = "Save Material Card...";
    dialog.InitDir = "c:\\";
    dialog.Filter = format.filter;
    dialog.DefaultExt = format.extension;
    dialog.Topic = "Material_Card.htm";
    dialog.FileName = "c:\\" + MaterialCard::of(*m_source, choice()).name + format.extension;
    dialog.CancelError = true;
    try {
        dialog.ShowSave();
    } catch (const RuntimeError &error) {
        if (error.number() == CancelSelected) return;
        throw;
    }
    writeWholeFile(dialog.FileName, m_text.toLatin1());
}

void frmCard::restore(const QSettings &settings) {
    cboFormat->setCurrentIndex(settings.value("format").toString() == QLatin1String("mapdl") ? 1 : 0);
    cboUnits->setCurrentIndex(settings.value("units").toString() == QLatin1String("mm") ? 1 : 0);
    m_yieldKey = settings.value("yield").toString();
}

void frmCard::keep(QSettings &settings) const {
    settings.setValue("format", cboFormat->currentIndex() == 1 ? "mapdl" : "calculix");
    settings.setValue("units", cboUnits->currentIndex() == 1 ? "mm" : "si");
    settings.setValue("yield", m_yieldKey);
}
