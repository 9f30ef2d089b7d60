#include "material/DesignPage.h"

#include "data/Material.h"
#include "design/DesignValues.h"
#include "material/grid_columns.h"
#include "material/MaterialControls.h"
#include "material/TemperatureBox.h"
#include "platform/forms/form.h"
#include "platform/forms/forms.h"
#include "platform/forms/msg_box.h"
#include "platform/runtime/runtime_error.h"
#include "shell/mdiVelmar.h"

namespace {

constexpr int ColumnWidth = 1150;

} // namespace

DesignPage::DesignPage(Form &window, MaterialControls &controls, DesignValues &values)
    : QObject(&window)
    , m_window(window)
    , m_controls(controls)
    , m_values(values)
    , m_box(new TemperatureBox(*controls.txtDesignTemp, this)) {
    controls.tdbDesign->setCaptionRows([](int row) { return row - row % DesignValues::RowsPerTable; });
    connectBox();
}

void DesignPage::connectBox() {
    connect(m_box, &TemperatureBox::becameSource, this,
            [this] { mdiVelmar::instance().frmDesignSource = &m_window; });
    connect(m_box, &TemperatureBox::enterPressed, this, [this] {
        if (hasTemperature()) RecalcDesignValues();
    });
    connect(m_controls.txtDesignTemp, &QLineEdit::textChanged, this, &DesignPage::textChanged);
}

/// One that was only begun is none yet.
bool DesignPage::hasTemperature() const {
    const QString text = m_controls.txtDesignTemp->text();
    return !text.isEmpty() && text != QLatin1String("-");
}

void DesignPage::BuildDesignTable(Material &material, const std::function<void(const QString &)> &load) {
    if (!m_values.build(material, load)) {
        m_controls.txtDesignTemp->setEnabled(false);
        m_controls.cmdPrintSave(3)->setEnabled(false);
        m_controls.cmdPrintSave(4)->setEnabled(false);
        return;
    }
    addGridColumns(material.MaxDesignCols());
    m_controls.tdbDesign->setArray(m_values.xDesignDB);
    m_controls.tdbDesign->Rebind();
}

void DesignPage::addGridColumns(int count) {
    TDBGrid &grid = *m_controls.tdbDesign;
    while (grid.ColumnCount() - 1 < count)
        AddGridColumn(grid, {}, ColumnWidth);
}

/// Also runs when another window writes the text here.
void DesignPage::textChanged() {
    if (hasTemperature()) RecalcDesignValues();
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
    const QString text = m_controls.txtDesignTemp->text();
    if (text.isEmpty() || text == QLatin1String(".") || text == QLatin1String(",")) {
        m_box->setDecimalTyped(false);
        m_box->Clear();
        return;
    }
    m_values.compute(text, mdiVelmar::instance().numberFlags());
    m_controls.tdbDesign->Rebind();
}
