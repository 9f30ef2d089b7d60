#include "platform/forms/number_blanks.h"

#include <QRegularExpression>

namespace {

template <class Condition>
QString withUnbroken(const QString &text, const Condition &keeps) {
    if (!text.contains(QLatin1Char(' '))) return text;
    static const QRegularExpression groups(QStringLiteral("(?<!\\d)\\d{1,3}(?: \\d{3})+(?!\\d)"));
    QString result = text;
    for (auto found = groups.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch number = found.next();
        if (!keeps(number.captured())) continue;
        for (qsizetype i = number.capturedStart(); i < number.capturedEnd(); ++i)
            if (text[i] == QLatin1Char(' ')) result[i] = QChar::Nbsp;
    }
    return result;
}

} // namespace

QString withUnbrokenNumbers(const QString &text) {
    return withUnbroken(text, [](const QString &) { return true; });
}

QString withUnbrokenNumbers(const QString &text, const QFontMetricsF &metrics, double width) {
    return withUnbroken(text,
                        [&](const QString &number) { return metrics.horizontalAdvance(number) <= width; });
}
