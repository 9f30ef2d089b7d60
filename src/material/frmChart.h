// The enlarged graph of the current material.
#pragma once

#include "platform/forms/control_array.h"
#include "platform/forms/form.h"

class MSChart;
class QFrame;
class QToolButton;

/// Holds no data: on load it copies the graph of the material's window, which it finds by name. Opened with
/// NewForm<frmChart>(), modal.
class frmChart : public Form {
    Q_OBJECT
    Q_PROPERTY(QString strCurrentTable MEMBER strCurrentTable)

public:
    frmChart();

    /// The key of the table that the graph belongs to.
    QString strCurrentTable;

    QFrame *framChart;
    MSChart *MSChart1;
    /// 0 save, 1 print, 2 back to the material.
    ControlArray<QToolButton> cmdGraph{"cmdGraph"};

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Resize() override;
    void Form_Unload(bool &cancel) override;

private:
    void addButton(int index, const QString &picture, const QString &toolTip);
    void save();
    void print();
    void takeGraph();
};
