// Material Card.
#pragma once

#include <optional>

#include <QHash>

#include "exchange/material_card.h"
#include "workbench/CardControls.h"
#include "workbench/WorkbenchWindow.h"

/// Each key and choice makes the card anew, from what was read of the grade.
class frmCard : public WorkbenchWindow, public CardControls {
    Q_OBJECT
public:
    frmCard();

    /// The tips of this window, or none.
    Q_INVOKABLE void SetToolTips(bool showTips);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void selectionChanged() override;
    void restore(const QSettings &settings) override;
    void keep(QSettings &settings) const override;

private:
    /// What a grade was given by hand.
    struct Given {
        QString poisson;
        QString density;
    };

    void connectControls();
    void fillGrades();
    void chooseGrade();
    void fillYields();
    void chooseYield();
    CardChoice choice() const;
    void showCard();
    void showFault(QLineEdit *box, QLabel *label, const QString &fault);
    void copyCard() const;
    void saveCard();

    std::optional<CardSource> m_source;
    QHash<qint16, Given> m_given;
    QString m_text;
    /// Wanted for each grade that has it: "Rp02", "Rp10" or empty.
    QString m_yieldKey;
    /// The current material when the window was last in front.
    qint16 m_current = 0;
};
