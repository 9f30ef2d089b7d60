#include "workbench/number_box.h"

#include <QLineEdit>

#include "platform/forms/placement.h"

namespace {

constexpr int LongestNumber = 12;

} // namespace

QLineEdit *numberBox(const QString &name, const QString &accessibleName) {
    auto *box = named(new QLineEdit, name, accessibleName);
    box->setMaxLength(LongestNumber);
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(QString(LongestNumber - 2, QLatin1Char('0'))));
    return box;
}
