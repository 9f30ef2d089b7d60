#include "material/ReferencePage.h"

#include <algorithm>
#include <numeric>

#include <QTextLayout>

#include "data/loaded_table.h"
#include "material/material_layout.h"
#include "material/MaterialControls.h"

using namespace MaterialLayout;

namespace {

constexpr int FirstRowTop = 300;
constexpr int RowGap = 60;
constexpr int LineHeight = 210;
constexpr int BelowLastRow = 60;
constexpr int FormsBox = 7;

/// The boxes that stand side by side, first those of the standard.
const QVector<QVector<int>> Rows{{0, 8}, {1}, {FormsBox}, {2, 4}, {3}, {5, 6}};
constexpr int StandardRows = 3;
const QVector<int> UsualLines{1, 2, 2, 1, 1, 1};
/// What the page has room for.
constexpr int MostLines = 11;

/// Rows get the lines that they need as long as there are any, then those that other rows can spare.
QVector<int> sharedLines(const QVector<int> &needed) {
    QVector<int> lines = UsualLines;
    for (;;) {
        qsizetype neediest = 0;
        qsizetype richest = 0;
        for (qsizetype i = 1; i < lines.size(); ++i) {
            if (needed[i] - lines[i] > needed[neediest] - lines[neediest]) neediest = i;
            if (needed[i] - lines[i] < needed[richest] - lines[richest]) richest = i;
        }
        if (needed[neediest] <= lines[neediest]) return lines;
        if (std::accumulate(lines.begin(), lines.end(), 0) >= MostLines) {
            if (needed[richest] >= lines[richest]) return lines; // the boxes scroll
            --lines[richest];
        }
        ++lines[neediest];
    }
}

} // namespace

ReferencePage::ReferencePage(MaterialControls &controls)
    : m_controls(controls) {}

void ReferencePage::Fill(const LoadedTable &references) {
    for (int row = 1; row <= references.cells.UpperBound(1); ++row) {
        const QString text = references.cells.Get(row, 1).toString();
        const bool stays = row - 1 == FormsBox && text.isEmpty();
        if (!stays) m_controls.txtMainData(row - 1)->setPlainText(" " + text);
    }
    layOut();
}

void ReferencePage::layOut() {
    QVector<int> needed;
    for (const QVector<int> &boxes : Rows) {
        int most = 1;
        for (const int box : boxes)
            most = std::max(most, linesOf(box));
        needed << most;
    }
    const QVector<int> lines = sharedLines(needed);
    int top = FirstRowTop;
    for (qsizetype i = 0; i < Rows.size(); ++i) {
        top = placeRow(Rows[i], top, lines[i]);
        if (i == StandardRows - 1 || i == Rows.size() - 1) {
            QWidget *frame = i < StandardRows ? m_controls.framStand : m_controls.framMain;
            resizeTo(frame, PageWidth, top - RowGap + BelowLastRow);
            top = FirstRowTop;
        }
    }
    moveTo(m_controls.framMain, PageLeft, PageTop + placeOf(m_controls.framStand).height() + FrameGap);
    const QRect forms = placeOf(m_controls.txtMainData(FormsBox));
    moveTo(m_controls.ImgPic(1), PageLeft + forms.left() + forms.width() + 75, PageTop + forms.top());
}

int ReferencePage::linesOf(int box) const {
    const QPlainTextEdit &edit = *m_controls.txtMainData(box);
    const int frames = 2 * edit.frameWidth() + static_cast<int>(2 * edit.document()->documentMargin());
    QTextLayout layout(edit.toPlainText().replace(QLatin1Char('\n'), QChar::LineSeparator), edit.font());
    QTextOption option;
    option.setWrapMode(edit.wordWrapMode());
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
        line.setLineWidth(edit.width() - frames);
    layout.endLayout();
    return layout.lineCount();
}

/// Returns the top of the next row.
int ReferencePage::placeRow(const QVector<int> &boxes, int top, int lines) {
    const int height = BoxHeight + (lines - 1) * LineHeight;
    for (const int box : boxes) {
        QWidget *edit = m_controls.txtMainData(box);
        place(edit, placeOf(edit).left(), top, placeOf(edit).width(), height);
        moveTo(m_controls.lblMainData(box), placeOf(m_controls.lblMainData(box)).left(), top);
    }
    return top + height + RowGap;
}
