#include "platform/forms/fitted_text.h"

#include <algorithm>
#include <cmath>

#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>

namespace {

constexpr QChar Ellipsis(0x2026);
constexpr int Unlimited = QWIDGETSIZE_MAX;

struct Line {
    QString text;
    double width;
    double height;
};

std::vector<Line> layOut(const QString &text, const QFont &font, int width, bool wrap) {
    QString laidOut = text;
    laidOut.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(laidOut, font);
    QTextOption option;
    option.setWrapMode(wrap ? QTextOption::WordWrap : QTextOption::ManualWrap);
    layout.setTextOption(option);
    std::vector<Line> lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(wrap ? width : Unlimited);
        QString shown = laidOut.mid(line.textStart(), line.textLength());
        while (!shown.isEmpty() && shown.back().isSpace() && shown.back() != QChar::Nbsp)
            shown.chop(1);
        lines.push_back({shown, line.naturalTextWidth(), line.height()});
    }
    layout.endLayout();
    return lines;
}

} // namespace

FittedText fitText(const QString &text, const QFont &font, QSize room, bool wrap) {
    const QFontMetrics metrics(font);
    std::vector<Line> lines = layOut(text, font, room.width(), wrap);
    FittedText fitted;
    const auto cutShort = [&](Line &line) {
        fitted.cut = true;
        line.text = metrics.elidedText(line.text + Ellipsis, Qt::ElideRight, room.width());
        line.width = std::min<double>(room.width(), metrics.horizontalAdvance(line.text));
    };
    const auto most = static_cast<std::size_t>(
        std::max(1.0, lines.empty() ? 1.0 : std::floor(room.height() / lines.front().height)));
    const bool tooMany = lines.size() > most;
    if (tooMany) lines.resize(most);
    for (Line &line : lines)
        if (line.width > room.width() || (tooMany && &line == &lines.back())) cutShort(line);
    if (fitted.cut && metrics.horizontalAdvance(Ellipsis) > room.width()) {
        fitted.size = QSize(room.width(), std::min(room.height(), metrics.height()));
        return fitted;
    }
    double width = 0;
    double height = 0;
    for (const Line &line : lines) {
        fitted.lines << line.text;
        width = std::max(width, line.width);
        height += line.height;
    }
    fitted.size = QSizeF(std::ceil(width), std::ceil(height)).toSize();
    return fitted;
}

void drawCutMark(QPainter &painter, const QRect &rect, const QColor &colour) {
    const int dot = rect.width() < 8 ? 1 : 2;
    const int step = rect.width() < 10 ? dot + 1 : 2 * dot;
    QRect place(0, 0, dot, dot);
    place.moveCenter(rect.center());
    for (const int offset : {-step, 0, step})
        painter.fillRect(place.translated(offset, 0), colour);
}
