#include "reports/report_layout.h"

#include <QFile>

namespace ReportLayout {

using namespace Printing;

namespace {

const QColor HeadingColour(0x1f, 0x3f, 0x66);
const QColor CaptionBackColour(0xe6, 0xec, 0xf4);

template <class ControlType>
ControlType &add(Section &section, const QString &name, int left, int top, int width, int height) {
    auto &control = section.Controls.Add<ControlType>(name);
    control.Left = left;
    control.Top = top;
    control.Width = width;
    control.Height = height;
    return control;
}

} // namespace

Label &addLabel(Section &section, const QString &name, const QString &text, int left, int top, int width,
                int height) {
    auto &label = add<Label>(section, name, left, top, width, height);
    label.Text = text;
    return label;
}

Field &addField(Section &section, const QString &name, int left, int top, int width, int height) {
    return add<Field>(section, name, left, top, width, height);
}

Image &addImage(Section &section, const QString &name, const QString &picture, int left, int top, int width,
                int height) {
    auto &image = add<Image>(section, name, left, top, width, height);
    QFile file(picture);
    if (file.open(QIODevice::ReadOnly)) image.Content = Picture::fromSvg(file.readAll());
    return image;
}

SubReport &addSubReport(Section &section, const QString &name, int top) {
    return add<SubReport>(section, name, 0, top, PageWidth, 0);
}

void asHeading(TextControl &control, int level) {
    control.HeadingLevel = level;
    control.Font.Bold = true;
    control.Font.Size = level == 1 ? 13 : 10;
    control.ForeColor = HeadingColour;
}

void asCaption(TextControl &control) {
    control.Alignment = 2;
    control.BackStyle = 1;
    control.BackColor = CaptionBackColour;
    control.Border = BorderStyles::all();
    control.Font.Size = 9;
}

void asCell(TextControl &control) {
    control.Alignment = 2;
    control.VerticalAlignment = 1;
    control.Border = BorderStyles::all();
    control.Font.Size = 9;
}

} // namespace ReportLayout
