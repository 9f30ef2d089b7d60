#include "material/ReferencePage.h"

#include "data/cell_values.h"
#include "data/Material.h"
#include "data/queries.h"
#include "material/material_texts.h"
#include "material/MaterialControls.h"
#include "material/MaterialSources.h"
#include "platform/dao/recordset.h"

ReferencePage::ReferencePage(MaterialControls &controls, DataControl &dtaTable)
    : m_controls(controls)
    , m_dtaTable(dtaTable) {}

void ReferencePage::Fill(const Material &material) {
    const auto show = [this](int index, const QString &value) {
        m_controls.txtMainData(index)->setPlainText(" " + value);
    };
    show(0, material.Standard());
    show(1, material.StandardDescription());
    show(2, material.Name());
    show(3, material.Description());
    show(4, material.Number());
    show(5, material.Group());
    show(6, CStr(material.RevisionDate()));
    show(8, CStr(material.StandardRevisionDate()));
}

void ReferencePage::LoadProductForms(Material &material) {
    MaterialSources::Run(m_dtaTable, Queries::sqlStandardProdForms(material.StandardID()));
    QVector<int> ids;
    for (const auto rows = m_dtaTable.recordset()->Clone(); !rows->Eof(); rows->MoveNext())
        ids << CInt(rows->Fields("prodFID"));
    if (ids.isEmpty()) return;
    MaterialSources::Run(m_dtaTable, Queries::sqlProdFormNames(ids));
    const QStringList forms =
        readProductForms(*m_dtaTable.recordset()->Clone(), static_cast<int>(ids.size()));
    m_controls.txtMainData(7)->setPlainText(productFormLine(forms));
    material.setProductForms(forms);
}
