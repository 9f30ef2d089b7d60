#include "material/GradeWindow.h"

#include "data/Material.h"
#include "data/modDBase.h"
#include "data/table_vocabulary.h"
#include "material/menu_place.h"
#include "platform/dao/database.h"
#include "platform/runtime/runtime_error.h"
#include "shell/mdiVelmar.h"

GradeWindow::GradeWindow()
    : Form("frmMaterial2", Kind::MdiChild) {}

void GradeWindow::SetMaterial(const std::shared_ptr<Material> &material) {
    const auto &database = modDBase::dbMain();
    if (!database) throw RuntimeError(91);
    m_tables.open(*database);
    frame()->raise();
    m_material = material;
    const LoadedTable references = m_tables.load(*material, "Ref");
    material->setMyForm(this);
    showReferences(references);
    strCurrentTable = "Ref";
    material->setTableHasData("Ref", true);
}

void GradeWindow::CheckTablesForRecords() {
    if (!m_material) throw RuntimeError(91);
    for (int i = 1; i < TableVocabulary::TableCount; ++i) {
        const QString key = TableVocabulary::GetShortTableName(i);
        if (!m_material->TableChecked(key)) load(key);
    }
}

LoadedTable GradeWindow::load(const QString &key) {
    return m_tables.load(*m_material, key);
}

void GradeWindow::Form_Unload(bool &) {
    mdiVelmar &main = mdiVelmar::instance();
    --main.iMaterialsOpen;
    main.CountMaterialsOpen();
    // All windows show the same table, so that its menu entry stays the current one.
    const MenuPlace place = menuPlaceOf(strCurrentTable);
    main.UpdateMenusAndButtons(place.group, place.index);
    if (m_material && m_material->MyForm() == this) m_material->setMyForm(nullptr);
}
