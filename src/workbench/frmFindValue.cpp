#include "workbench/frmFindValue.h"

#include <algorithm>

#include "data/modDBase.h"
#include "platform/dao/database.h"
#include "platform/forms/busy_pointer.h"
#include "platform/forms/default_instance.h"
#include "platform/runtime/runtime_error.h"
#include "reports/save_taken.h"
#include "search/frmSearch.h"
#include "shell/mdiVelmar.h"
#include "workbench/condition_inputs.h"
#include "workbench/FoundGrid.h"
#include "workbench/PropertyPlot.h"
#include "workbench/TableReading.h"

namespace {

QString countText(int grades) {
    return TypedTexts::grouped(grades) + (grades == 1 ? " grade" : " grades");
}

} // namespace

frmFindValue::frmFindValue()
    : WorkbenchWindow("frmFindValue", "Find by Value", "Find_By_Value.htm")
    , FindControls(*static_cast<QWidget *>(this))
    , m_grid(std::make_unique<FoundGrid>(*tdbFound))
    , m_found(std::make_shared<FoundGrades>()) {
    resize(860, 640);
}

frmFindValue::~frmFindValue() = default;

void frmFindValue::Form_Load() {
    const auto &database = modDBase::dbMain();
    if (!database) throw RuntimeError(91);
    mdiVelmar &main = mdiVelmar::instance();
    {
        const BusyPointer busy;
        m_search = std::make_shared<ValueSearch>(*database, main.numberFlags());
        m_properties = Properties::all(*database);
    }
    for (const auto &[index, list] : cboProperty)
        for (const Property &property : m_properties)
            list->addItem(property.label);
    plot->setProperties(m_properties);
    main.SetRowColors(*tdbFound, false);
    SetToolTips(main.bToolTips);
    WorkbenchWindow::Form_Load();
    showConditions(m_conditions);
    connectControls();
    connectCommands();
    txtTemperature(0)->setFocus();
    // The window is to be seen while the first table is read.
    QMetaObject::invokeMethod(this, &frmFindValue::refresh, Qt::QueuedConnection);
}

void frmFindValue::connectControls() {
    for (QLineEdit *box : boxes())
        connect(box, &QLineEdit::textChanged, this, &frmFindValue::refresh);
    for (const auto &[index, list] : cboProperty)
        connect(list, &QComboBox::currentIndexChanged, this, &frmFindValue::readNow);
    for (const auto &[index, button] : cmdRemove)
        connect(button, &QToolButton::clicked, this, [this, index = index] { removeCondition(index); });
    connect(cmdAdd, &QPushButton::clicked, this, &frmFindValue::addCondition);
    connect(tabPages, &QTabWidget::currentChanged, this, &frmFindValue::readNow);
    connect(plot, &PropertyPlot::changed, this, &frmFindValue::readNow);
    connect(reading, &TableReading::wanted, this, &frmFindValue::readNow);
}

void frmFindValue::connectCommands() {
    const auto selectCurrent = [this] {
        select(showsPlot() ? plot->currentGrade() : m_grid->currentGrade());
    };
    connect(cmdSelect, &QPushButton::clicked, this, selectCurrent);
    connect(tdbFound, &TDBGrid::EnterPressed, this, selectCurrent);
    connect(tdbFound, &TDBGrid::DblClick, this, selectCurrent);
    connect(plot, &PropertyPlot::chosen, this, &frmFindValue::select);
    connect(plot, &PropertyPlot::currentChanged, this,
            [this] { cmdSelect->setEnabled(plot->currentGrade() >= 0); });
    connect(cmdCopy, &QPushButton::clicked, this, &frmFindValue::copyAll);
    connect(cmdSave, &QPushButton::clicked, this, &frmFindValue::saveAll);
}

void frmFindValue::SetToolTips(bool showTips) {
    setTips(showTips);
    plot->setTips(showTips);
}

void frmFindValue::selectionChanged() {
    QSet<qint16> ids;
    for (const Grades::Grade &grade : selected())
        ids.insert(grade.id);
    m_grid->setSelected(ids);
    lblSelected->setText(DefaultInstance<frmSearch>().lblSelCount->text());
}

ConditionTexts frmFindValue::textsOf(int condition) const {
    return {txtTemperature(condition)->text(), txtThickness(condition)->text(), txtLeast(condition)->text(),
            txtGreatest(condition)->text()};
}

void frmFindValue::setTexts(int condition, int property, const ConditionTexts &texts) {
    cboProperty(condition)->setCurrentIndex(property);
    txtTemperature(condition)->setText(texts.temperature);
    txtThickness(condition)->setText(texts.thickness);
    txtLeast(condition)->setText(texts.least);
    txtGreatest(condition)->setText(texts.greatest);
}

/// At the temperature and in the thickness of the one before.
void frmFindValue::addCondition() {
    if (m_conditions == ValueSearch::MostConditions) return;
    const int index = m_conditions++;
    ConditionTexts texts = textsOf(index - 1);
    texts.least.clear();
    texts.greatest.clear();
    setTexts(index, cboProperty(index - 1)->currentIndex(), texts);
    showConditions(m_conditions);
    cboProperty(index)->setFocus();
    refresh();
}

void frmFindValue::removeCondition(int index) {
    if (m_conditions == 1) return;
    --m_conditions;
    for (int i = index; i < m_conditions; ++i)
        setTexts(i, cboProperty(i + 1)->currentIndex(), textsOf(i + 1));
    showConditions(m_conditions);
    txtTemperature(std::min(index, m_conditions - 1))->setFocus();
    refresh();
}

void frmFindValue::readNow() {
    m_stopped = false;
    refresh();
}

void frmFindValue::refresh() {
    if (reading->isReading()) return;
    const std::optional<ValueQuery> asked = query();
    plot->follow(textsOf(0));
    const bool isRead = readTables(asked);
    const auto found = std::make_shared<FoundGrades>();
    // The columns stay while there is nothing to show in them.
    found->query = m_found->query;
    if (asked && isRead) {
        found->query = *asked;
        found->result = m_search->find(*asked);
    }
    m_found = found;
    showFound(asked && isRead);
    showPlot(isRead);
    stkLine->setCurrentWidget(isRead ? static_cast<QWidget *>(lblSummary) : reading);
}

std::optional<ValueQuery> frmFindValue::query() {
    ValueQuery query;
    query.texts.standard = txtStandard->text();
    query.texts.group = txtGroup->text();
    query.texts.productForm = txtProductForm->text();
    bool isGood = true;
    for (int i = 0; i < m_conditions; ++i) {
        const auto condition =
            ConditionInputs::condition(m_properties.value(cboProperty(i)->currentIndex()), textsOf(i));
        lblLeft(i)->setText(condition.error);
        for (QLineEdit *box : boxesOf(i))
            box->setAccessibleDescription(condition.error);
        if (condition)
            query.conditions << *condition;
        else
            isGood = false;
    }
    return isGood ? std::optional(query) : std::nullopt;
}

QVector<Property> frmFindValue::wantedProperties(const std::optional<ValueQuery> &query) const {
    QVector<Property> wanted;
    if (query)
        for (const ValueCondition &condition : query->conditions)
            wanted << condition.property;
    return showsPlot() ? wanted + plot->properties() : wanted;
}

/// False where one of them is missing, because the user stopped its reading.
bool frmFindValue::readTables(const std::optional<ValueQuery> &query) {
    for (const Property &property : wantedProperties(query)) {
        if (m_search->isRead(property.key)) continue;
        if (m_stopped) return false;
        stkLine->setCurrentWidget(reading);
        if (reading->read(*m_search, property)) continue;
        m_stopped = true;
        return false;
    }
    return true;
}

void frmFindValue::showFound(bool isQuery) {
    showCounts(isQuery);
    lblSummary->setText(isQuery ? m_search->summary(m_found->query, m_found->result)
                                : "Nothing is searched for until each condition can be read. Beside it "
                                  "stands what is missing.");
    if (!showsPlot()) m_grid->show(m_search, m_found);
    const bool any = m_found->count() > 0;
    cmdSelect->setEnabled(any);
    cmdCopy->setEnabled(any);
    cmdSave->setEnabled(any);
}

void frmFindValue::showCounts(bool isQuery) {
    lblTexts->setText(isQuery ? countText(m_found->result.left.value(0)) : QString());
    for (int i = 0; isQuery && i < m_conditions; ++i)
        lblLeft(i)->setText("leaves " + countText(m_found->result.left.value(i + 1)));
}

bool frmFindValue::showsPlot() const {
    return tabPages->currentWidget() == plot;
}

void frmFindValue::showPlot(bool isRead) {
    if (!showsPlot()) return;
    if (isRead)
        plot->show(m_search, *m_found);
    else
        plot->clear("The values are not there yet.");
    cmdSelect->setEnabled(plot->currentGrade() >= 0);
}

void frmFindValue::select(int grade) {
    if (grade < 0) return;
    DefaultInstance<frmSearch>().SelectGrade(m_search->grades()[grade].id);
    Form_Activate();
}

/// Behind the diagram the grid waits, and is of an earlier question.
TakenTable frmFindValue::table() {
    m_grid->show(m_search, m_found);
    return FoundTable::taken(*m_search, *m_found, m_grid->places());
}

void frmFindValue::copyAll() {
    const BusyPointer busy;
    SaveTaken::copy(table());
}

void frmFindValue::saveAll() {
    SaveTaken::saveAsking(table(), FoundTable::facts(*m_search, *m_found), "Find_By_Value.htm");
}

void frmFindValue::restore(const QSettings &settings) {
    m_conditions = std::clamp(settings.value("conditions").toInt(), 1, ValueSearch::MostConditions);
    for (int i = 0; i < m_conditions; ++i) {
        const QString key = QStringLiteral("condition%1/").arg(i + 1);
        const auto text = [&](const char *name) { return settings.value(key + name).toString(); };
        const auto property = Properties::named(m_properties, text("property"));
        setTexts(i, property ? static_cast<int>(m_properties.indexOf(*property)) : 0,
                 {text("temperature"), text("thickness"), text("least"), text("greatest")});
    }
    txtStandard->setText(settings.value("standard").toString());
    txtGroup->setText(settings.value("group").toString());
    txtProductForm->setText(settings.value("productForm").toString());
    plot->restore(settings);
}

void frmFindValue::keep(QSettings &settings) const {
    settings.setValue("conditions", m_conditions);
    for (int i = 0; i < m_conditions; ++i) {
        const QString key = QStringLiteral("condition%1/").arg(i + 1);
        const ConditionTexts texts = textsOf(i);
        settings.setValue(key + "property", m_properties.value(cboProperty(i)->currentIndex()).name());
        settings.setValue(key + "temperature", texts.temperature);
        settings.setValue(key + "thickness", texts.thickness);
        settings.setValue(key + "least", texts.least);
        settings.setValue(key + "greatest", texts.greatest);
    }
    settings.setValue("standard", txtStandard->text());
    settings.setValue("group", txtGroup->text());
    settings.setValue("productForm", txtProductForm->text());
    plot->keep(settings);
}
