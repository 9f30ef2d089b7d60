// Asks which tables of the current material go into its report.
#pragma once

#include <memory>

#include "platform/forms/form.h"
#include "reports/FormatChoice.h"

class Material;
class QCheckBox;
class QLabel;
class QPushButton;

/// Whoever shows it sets the caption of cmdSavePrint, "Save..." to save, and shows or hides framSave.
class frmSelData : public Form, public FormatChoice {
    Q_OBJECT
public:
    frmSelData();

    QLabel *lblSelData;
    /// By table index.
    ControlArray<QCheckBox> chkData{"chkData"};
    QPushButton *cmdSavePrint;
    QPushButton *cmdCancel;

protected:
    void Form_Load() override;
    void Form_QueryUnload(bool &cancel, UnloadMode mode) override;

private:
    void checkTables();
    void placeBoxes();
    void setTabOrders();
    void savePrint();

    std::shared_ptr<Material> m_material;
};
