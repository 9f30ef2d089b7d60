#include "design/DesignPage.h"

#include "data/Material.h"
#include "design/CreepColumns.h"
#include "design/design_headings.h"
#include "design/interpolation.h"
#include "design/SourceArrays.h"
#include "design/TemperatureBox.h"
#include "material/grid_columns.h"
#include "material/MaterialControls.h"
#include "platform/forms/form.h"
#include "platform/forms/forms.h"
#include "platform/forms/msg_box.h"
#include "platform/runtime/runtime_error.h"
#include "shell/mdiVelmar.h"

namespace {

const QString CreepKey = QStringLiteral("CreepProp");
/// The tables that may have design values, in their order.
const QStringList strDesignKeys{"Rp02",     "Rp10",      "Rm",           "CreepProp",  "ModElast",
                                "ThermExp", "ThermCond", "SpecThermCap", "SpecElecRes"};

/// Captions, values and an empty row.
constexpr int RowsPerTable = 3;
constexpr int ColumnWidth = 1150;

/// A temperature begun, or none at all: nothing to compute from.
bool isNoTemperature(const QString &text) {
    return text.isEmpty() || text == QLatin1String("-");
}

} // namespace

DesignPage::DesignPage(Form &window, MaterialControls &controls, SourceArrays &sources,
                       const CreepColumns &creep, std::function<void(const QString &)> showTable)
    : QObject(&window)
    , m_window(window)
    , m_controls(controls)
    , m_sources(sources)
    , m_creep(creep)
    , m_showTable(std::move(showTable))
    , m_box(new TemperatureBox(*controls.txtDesignTemp, this)) {
    controls.tdbDesign->setCaptionRows([](int row) { return row - row % RowsPerTable; });
    connectBox();
}

void DesignPage::connectBox() {
    connect(m_box, &TemperatureBox::becameSource, this,
            [this] { mdiVelmar::instance().frmDesignSource = &m_window; });
    connect(m_box, &TemperatureBox::enterPressed, this, [this] {
        if (!isNoTemperature(m_controls.txtDesignTemp->text())) RecalcDesignValues();
    });
    connect(m_controls.txtDesignTemp, &QLineEdit::textChanged, this, &DesignPage::textChanged);
}

void DesignPage::BuildDesignTable(Material &material, const std::shared_ptr<XArrayDB> &xDesignDB) {
    m_values = xDesignDB;
    for (const QString &key : strDesignKeys) {
        if (!material.TableChecked(key)) m_showTable(key);
        if (material.TableHasData(key)) strDesignTables << key;
    }
    if (strDesignTables.isEmpty()) {
        m_controls.txtDesignTemp->setEnabled(false);
        m_controls.cmdPrintSave(3)->setEnabled(false);
        m_controls.cmdPrintSave(4)->setEnabled(false);
        return;
    }
    if (material.MaxDesignCols() == 0) material.setMaxDesignCols(1);
    m_values->ReDim(1, static_cast<int>(strDesignTables.size()) * RowsPerTable, 0, material.MaxDesignCols());
    writeCaptions(material);
    addGridColumns(material.MaxDesignCols());
    m_controls.tdbDesign->setArray(m_values);
    m_controls.tdbDesign->Rebind();
}

void DesignPage::writeCaptions(const Material &material) {
    int row = 1;
    for (const QString &key : strDesignTables) {
        const QVector<qint16> bands =
            material.ElevatedMultiCol(key) ? material.ElevatedColumns(key) : QVector<qint16>();
        const DesignHeadings headings = designHeadings(key, bands, m_creep.aCreepCaptions);
        m_values->Set(row, 0, headings.label);
        const int count = std::min(static_cast<int>(headings.columns.size()), m_values->UpperBound(2));
        for (int column = 1; column <= count; ++column)
            m_values->Set(row, column, headings.columns[column - 1]);
        row += RowsPerTable;
    }
}

void DesignPage::addGridColumns(int count) {
    TDBGrid &grid = *m_controls.tdbDesign;
    while (grid.ColumnCount() - 1 < count)
        AddGridColumn(grid, {}, ColumnWidth);
}

/// Also runs when another window writes the text here.
void DesignPage::textChanged() {
    if (!isNoTemperature(m_controls.txtDesignTemp->text())) RecalcDesignValues();
    const Form *source = mdiVelmar::instance().frmDesignSource;
    if (source != nullptr && source->Caption() == m_window.Caption()) spreadTemperature();
}

/// To the other material windows, which compute for themselves and pass nothing on: they are not the source.
void DesignPage::spreadTemperature() {
    for (FormBase &form : Forms()) {
        if (form.Name() != m_window.Name() || form.Caption() == m_window.Caption()) continue;
        auto *box = form.asWidget()->findChild<QLineEdit *>(m_controls.txtDesignTemp->objectName());
        if (box != nullptr && box->isEnabled()) box->setText(m_controls.txtDesignTemp->text());
    }
}

void DesignPage::RecalcDesignValues() {
    CalcDesignValues();
}

/// Reads nothing but the arrays in memory: it runs at every key.
void DesignPage::CalcDesignValues() {
    try {
        computeTables();
    } catch (const RuntimeError &error) {
        // What was written before the failure stays; the box keeps its memory of the keys.
        m_controls.tdbDesign->Rebind();
        MsgBox(error.description());
        m_box->Clear();
    }
}

void DesignPage::computeTables() {
    const mdiVelmar &main = mdiVelmar::instance();
    const QString text = m_controls.txtDesignTemp->text();
    if (text.isEmpty() || text == QLatin1String(".") || text == QLatin1String(",")) {
        m_box->setDecimalTyped(false);
        m_box->Clear();
        return;
    }
    const auto temperature = Interpolation::typedTemperature(text, main.bCommaGroup);
    if (strDesignTables.isEmpty()) throw RuntimeError(9);
    int row = 2;
    for (const QString &key : strDesignTables) {
        const SourceArray &source = sourceOf(key);
        const auto set = [&](int column, const QString &cell) { m_values->Set(row, column, cell); };
        // A creep table may have rows and yet no column with a value.
        if (source.lastColumn() >= 0)
            Interpolation::designValues(source, temperature, main.bDecimalPoint, set);
        row += RowsPerTable;
    }
    m_controls.tdbDesign->Rebind();
}

const SourceArray &DesignPage::sourceOf(const QString &key) const {
    return key == CreepKey ? m_creep.aCreepData : m_sources.of(key);
}
