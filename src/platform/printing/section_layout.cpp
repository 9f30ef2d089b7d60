#include "platform/printing/section_layout.h"

#include <algorithm>
#include <climits>
#include <optional>
#include <span>

#include "platform/printing/text_layout.h"
#include "platform/runtime/twips.h"

namespace Printing {

namespace {

Element textElement(const TextControl &control) {
    Element element;
    static_cast<TextStyle &>(element) = control;
    element.text = control.Text;
    if (const auto *field = dynamic_cast<const Field *>(&control)) element.pageValue = field->Summary;
    return element;
}

Element pictureElement(const Control &control, const Picture &picture, const QString &alternativeText) {
    Element element;
    element.picture = picture;
    element.pictureSize = QSize(control.Width, control.Height);
    element.alternativeText = printableText(alternativeText);
    return element;
}

Picture recordChart(const Chart &chart) {
    if (!chart.Paint) return {};
    return Picture::record(chart.Paint, QSizeF(chart.Width, chart.Height) / TwipsPerPixel);
}

int naturalHeight(const Control &control, int needed) {
    if (needed > control.Height) return control.CanGrow ? needed : control.Height;
    return control.CanShrink ? needed : control.Height;
}

// The box has the control's place and the height of its content.
PlacedControl measure(const Control &control, int subReportHeight) {
    PlacedControl placed{&control, {}};
    Element &element = placed.element;
    const QRect designed(control.Left, control.Top, control.Width, control.Height);
    int height = control.Height;
    if (const auto *text = dynamic_cast<const TextControl *>(&control)) {
        element = textElement(*text);
        element.box = designed;
        breakLines(element, text->WordWrap);
        height = naturalHeight(control, neededHeight(element));
    } else if (const auto *image = dynamic_cast<const Image *>(&control)) {
        element = pictureElement(control, image->Content, image->AlternativeText);
    } else if (const auto *chart = dynamic_cast<const Chart *>(&control)) {
        element = pictureElement(control, recordChart(*chart), chart->AlternativeText);
    } else if (const auto *line = dynamic_cast<const Line *>(&control)) {
        element.isRule = true;
        element.ForeColor = line->LineColor;
    } else if (dynamic_cast<const SubReport *>(&control)) {
        height = naturalHeight(control, subReportHeight);
    }
    element.box = QRect(control.Left, control.Top, control.Width, height);
    return placed;
}

// Cells that were drawn as one row stay one row when one of them grows.
void equaliseRows(std::vector<PlacedControl> &controls) {
    for (PlacedControl &placed : controls) {
        if (!placed.element.Border.any()) continue;
        int height = placed.element.box.height();
        for (const PlacedControl &other : controls)
            if (other.element.Border.any() && other.control->Top == placed.control->Top &&
                other.control->Height == placed.control->Height)
                height = std::max(height, other.element.box.height());
        placed.element.box.setHeight(height);
    }
}

int designedBottom(const PlacedControl &placed) {
    return placed.control->Top + placed.control->Height;
}

int bottom(const PlacedControl &placed) {
    return placed.element.box.top() + placed.element.box.height();
}

// What was drawn at `designedTop` keeps the distance to what it was drawn directly below, and so to all that
// stands above that. Nothing if it was drawn below none.
std::optional<int> topBelow(std::span<const PlacedControl> controls, int designedTop) {
    int nearestTop = INT_MIN;
    for (const PlacedControl &placed : controls)
        if (designedBottom(placed) <= designedTop) nearestTop = std::max(nearestTop, placed.control->Top);
    std::optional<int> top;
    for (const PlacedControl &placed : controls) {
        if (designedBottom(placed) > designedTop) continue;
        const bool isAboveNearest = designedBottom(placed) <= nearestTop && placed.control->Top < nearestTop;
        if (!isAboveNearest)
            top = std::max(top.value_or(INT_MIN), bottom(placed) + designedTop - designedBottom(placed));
    }
    return top;
}

void pushDown(std::vector<PlacedControl> &controls) {
    for (std::size_t i = 0; i < controls.size(); ++i)
        if (const auto top = topBelow(std::span(controls).first(i), controls[i].control->Top))
            controls[i].element.box.moveTop(*top);
}

int instanceHeight(const Section &section, const std::vector<PlacedControl> &controls) {
    if (!section.CanGrow) return section.Height;
    int height = topBelow(controls, section.Height).value_or(section.Height);
    for (const PlacedControl &placed : controls)
        height = std::max(height, bottom(placed));
    return height;
}

} // namespace

SectionLayout layOutSection(const Section &section, const QHash<const Control *, int> &subReportHeights) {
    SectionLayout layout;
    for (const auto &control : section.Controls)
        if (control->Visible)
            layout.controls.push_back(measure(*control, subReportHeights.value(control.get())));
    std::stable_sort(
        layout.controls.begin(), layout.controls.end(),
        [](const PlacedControl &a, const PlacedControl &b) { return a.control->Top < b.control->Top; });
    equaliseRows(layout.controls);
    pushDown(layout.controls);
    layout.height = instanceHeight(section, layout.controls);
    for (PlacedControl &placed : layout.controls) {
        if (!placed.control->CanGrow) cutLinesToBox(placed.element);
        arrangeLines(placed.element);
    }
    return layout;
}

} // namespace Printing
