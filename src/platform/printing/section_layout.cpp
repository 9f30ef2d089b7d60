#include "platform/printing/section_layout.h"

#include <algorithm>

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
    element.alternativeText = alternativeText;
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

// A control keeps the distance to those that it was drawn below.
void pushDown(std::vector<PlacedControl> &controls) {
    for (std::size_t i = 0; i < controls.size(); ++i) {
        bool below = false;
        int top = 0;
        const int designedTop = controls[i].control->Top;
        for (std::size_t above = 0; above < i; ++above) {
            const int gap = designedTop - designedBottom(controls[above]);
            if (gap < 0) continue;
            top = below ? std::max(top, bottom(controls[above]) + gap) : bottom(controls[above]) + gap;
            below = true;
        }
        if (below) controls[i].element.box.moveTop(top);
    }
}

int instanceHeight(const Section &section, const std::vector<PlacedControl> &controls) {
    if (controls.empty() || !section.CanGrow) return section.Height;
    int height = 0;
    for (const PlacedControl &placed : controls)
        height = std::max(height, bottom(placed) + std::max(0, section.Height - designedBottom(placed)));
    return height;
}

} // namespace

SectionLayout layOutSection(const Section &section, const QHash<const Control *, int> &subReportHeights) {
    SectionLayout layout;
    for (const auto &control : section.Controls)
        if (control->Visible)
            layout.controls.push_back(measure(*control, subReportHeights.value(control.get())));
    std::stable_sort(layout.controls.begin(), layout.controls.end(),
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
