#include "workbench/CardControls.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/forms/placement.h"

namespace {

constexpr int LongestCardText = 30;

DropDownList *list(QWidget *page, const QString &name, const QString &accessibleName,
                   const QStringList &items = {}) {
    auto *made = named(new DropDownList(page), name, accessibleName);
    made->addItems(items);
    made->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    made->setMinimumContentsLength(16);
    return made;
}

QLineEdit *box(QWidget *page, const QString &name, const QString &accessibleName) {
    auto *made = named(new QLineEdit(page), name, accessibleName);
    made->setMaxLength(LongestCardText);
    return made;
}

QLabel *caption(const QString &text, QWidget *buddy) {
    auto *label = new QLabel(text, buddy->parentWidget());
    label->setBuddy(buddy);
    return label;
}

QLabel *fault(QWidget *page, const QString &name) {
    auto *label = named(new QLabel(page), name);
    label->setWordWrap(true);
    return label;
}

QPushButton *button(QWidget *page, const QString &text, const QString &name, const QString &accessibleName) {
    auto *made = named(new QPushButton(text, page), name, accessibleName);
    made->setAutoDefault(false);
    return made;
}

} // namespace

CardControls::CardControls(QWidget &window)
    : stkCard(named(new QStackedWidget(&window), "stkCard"))
    , lblEmpty(named(new QLabel("No material is selected. Select one in the search window, or by Tools, Find "
                                "by Value; then its card stands here.",
                                stkCard),
                     "lblEmpty")) {
    lblEmpty->setAlignment(Qt::AlignCenter);
    lblEmpty->setWordWrap(true);
    stkCard->addWidget(lblEmpty);
    stkCard->addWidget(makePage());
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(stkCard);
}

QWidget *CardControls::makePage() {
    auto *page = new QWidget(stkCard);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(makeChoices(page));
    txtCard = named(new QPlainTextEdit(page), "txtCard", "Card");
    txtCard->setReadOnly(true);
    // With a cursor, so that the keys move in it and a screen reader reads it.
    txtCard->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    txtCard->setTabChangesFocus(true);
    txtCard->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtCard->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    layout->addWidget(txtCard, 1);
    layout->addLayout(makeCommands(page));
    return page;
}

QGridLayout *CardControls::makeChoices(QWidget *page) {
    cboGrade = list(page, "cboGrade", "Grade");
    cboFormat = list(page, "cboFormat", "Format", {"CalculiX / Abaqus", "Ansys MAPDL"});
    cboUnits = list(page, "cboUnits", "Units", {"kg, m, s, Pa", "t, mm, s, MPa"});
    txtPoisson = box(page, "txtPoisson", "Poisson's ratio");
    lblPoisson = fault(page, "lblPoisson");
    txtDensity = box(page, "txtDensity", "Density in kg/m³");
    lblDensity = fault(page, "lblDensity");
    cboYield = list(page, "cboYield", "Yield stress");
    cboBand = list(page, "cboBand", "Thickness band");
    lblBand = fault(page, "lblBand");
    auto *layout = new QGridLayout;
    layout->setColumnStretch(1, 2);
    layout->setColumnStretch(3, 2);
    layout->setColumnStretch(4, 3);
    layout->addWidget(caption("&Grade", cboGrade), 0, 0);
    layout->addWidget(cboGrade, 0, 1, 1, 3);
    layout->addWidget(caption("&Format", cboFormat), 1, 0);
    layout->addWidget(cboFormat, 1, 1);
    layout->addWidget(caption("&Yield stress", cboYield), 2, 0);
    layout->addWidget(cboYield, 2, 1);
    layout->addWidget(caption("&Units", cboUnits), 3, 0);
    layout->addWidget(cboUnits, 3, 1);
    layout->addWidget(caption("&Poisson's ratio", txtPoisson), 1, 2);
    layout->addWidget(txtPoisson, 1, 3);
    layout->addWidget(lblPoisson, 1, 4);
    layout->addWidget(caption("Thickness &band", cboBand), 2, 2);
    layout->addWidget(cboBand, 2, 3);
    layout->addWidget(lblBand, 2, 4);
    layout->addWidget(caption("&Density [kg/m³]", txtDensity), 3, 2);
    layout->addWidget(txtDensity, 3, 3);
    layout->addWidget(lblDensity, 3, 4);
    const QList<QWidget *> order{cboGrade, cboFormat, txtPoisson, cboYield, cboBand, cboUnits, txtDensity};
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
    return layout;
}

QHBoxLayout *CardControls::makeCommands(QWidget *page) {
    cmdCopy = button(page, "&Copy", "cmdCopy", "Copy");
    cmdSave = button(page, "&Save...", "cmdSave", "Save");
    auto *layout = new QHBoxLayout;
    layout->addStretch(1);
    layout->addWidget(cmdCopy);
    layout->addWidget(cmdSave);
    return layout;
}

void CardControls::showEmpty(bool empty) {
    stkCard->setCurrentIndex(empty ? 0 : 1);
}

void CardControls::setTips(bool shown) {
    const auto tip = [shown](QWidget *control, const QString &text) {
        control->setToolTip(shown ? text : QString());
    };
    tip(cboGrade, "One of the selected materials");
    tip(cboFormat, "The program that reads the card");
    tip(cboUnits, "The units of all figures in the card");
    tip(txtPoisson, "The database has none: from 0 to below 0.5");
    tip(txtDensity, "The database has none: in kg/m³");
    tip(cboYield, "The stress at which the material yields, over temperature");
    tip(cboBand, "The thickness that the yield stress holds for");
    tip(cmdCopy, "Copy the card");
    tip(cmdSave, "Save the card as a text file");
}
