#include "material/AdditionalInfo.h"

#include "data/cell_values.h"
#include "data/Material.h"
#include "data/modDBase.h"
#include "data/queries.h"
#include "material/material_texts.h"
#include "material/MaterialSources.h"
#include "material/NotesPanel.h"
#include "platform/dao/recordset.h"

namespace {
const QString Key = QStringLiteral("AddInfo");
}

AdditionalInfo::AdditionalInfo(DataControl &dtaTable, DataControl &dtaOther, NotesPanel &panel)
    : m_dtaTable(dtaTable)
    , m_dtaOther(dtaOther)
    , m_panel(panel) {}

void AdditionalInfo::LoadAddInfo(Material &material) {
    MaterialSources::Run(m_dtaTable, Queries::sqlAdditionalInfo(material.ID()));
    MaterialSources::Run(m_dtaOther, Queries::sqlInfoTitles());
    const auto rows = m_dtaTable.recordset()->Clone();
    material.setTableHasData(Key, !rows->Eof());
    if (rows->Eof()) return;

    QVector<InfoParagraph> paragraphs;
    for (; !rows->Eof(); rows->MoveNext())
        paragraphs << InfoParagraph{CInt(rows->Fields("titleID")), cellText(rows->Fields("InfoText"))};
    const auto titles = m_dtaOther.recordset();
    m_panel.setText(additionalInfoText(m_panel.Text(), paragraphs, [&titles](int titleID) {
        return modDBase::GetText(*titles, titleID, "titleID", "titleText");
    }));
    material.setAddInfo(m_panel.Text());
}
