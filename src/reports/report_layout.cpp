#include "reports/report_layout.h"

#include <QFile>
#include <QHash>

#include "data/Material.h"
#include "shell/mdiVelmar.h"

namespace ReportLayout {

using namespace Printing;

namespace {

const QColor HeadingColour(0x1f, 0x3f, 0x66);
const QColor CaptionBackColour(0xe6, 0xec, 0xf4);
constexpr double TableFontSize = 9;
constexpr double FooterFontSize = 8;
constexpr int BatchTitleWidth = 9071;

template <class ControlType>
ControlType &add(Section &section, const QString &name, int left, int top, int width, int height) {
    auto &control = section.Controls.Add<ControlType>(name);
    control.Left = left;
    control.Top = top;
    control.Width = width;
    control.Height = height;
    return control;
}

/// Each is read and parsed once: a batch asks for the same few two thousand times.
Picture pictureOf(const QString &path) {
    static QHash<QString, Picture> read;
    const auto known = read.constFind(path);
    if (known != read.constEnd()) return *known;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return *read.insert(path, Picture::fromSvg(file.readAll()));
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
    if (!picture.isEmpty()) image.Content = pictureOf(picture);
    return image;
}

SubReport &addSubReport(Section &section, const QString &name, int top) {
    return add<SubReport>(section, name, 0, top, PageWidth, 0);
}

void addProgramHead(Section &section, const QString &dateTime) {
    // the picture fills the gap in front of the word: it is the product's first letter
    Image &letter = addImage(section, "imgVelmar", ":/velmar/app/velmar-ped.svg", 0, 90, 540, 540);
    letter.AlternativeText = "V";
    Label &title = addLabel(section, "lblVelmar", "     elmar-PED", 0, 120, 6000, 540);
    title.Font.Size = 20;
    title.Font.Bold = true;
    Field &made = addField(section, "txtDateTime", 6000, 330, 3060, 270);
    made.Text = dateTime;
    made.Alignment = 1;
    made.Font.Size = TableFontSize;
    addImage(section, "Image1", ":/velmar/app/logo.svg", 9240, 0, 960, 720);
}

Label &addTitle(Section &section, const QString &text) {
    Label &title = addLabel(section, "lblTitle", text, 0, 0, PageWidth, TitleHeight);
    asHeading(title, 2);
    return title;
}

void addNotes(Section &section) {
    section.KeepTogether = true;
    Label &label = addLabel(section, "lblNotes", "Notes", 0, 90, PageWidth, 240);
    label.Font.Bold = true;
    label.Font.Size = TableFontSize;
    label.KeepWithNext = true;
    addField(section, "txtNotes", 0, 330, PageWidth, 240).Font.Size = TableFontSize;
}

/// Six design tables and their key, the most there are, fit on one page below the header.
void setPage(PageSettings &page) {
    page.BottomMargin = 700;
}

void addPageFooter(Section &section) {
    section.Height = 540;
    auto &rule = section.Controls.Add<Line>("linFooter");
    rule.Width = PageWidth;
    rule.Top = 90;
    Label &word = addLabel(section, "lblPage", "Page", 8600, 135, 640, 200);
    Field &page = addField(section, "txtPage", 9270, 135, 300, 200);
    Label &of = addLabel(section, "lblOf", "of", 9570, 135, 230, 200);
    Field &total = addField(section, "txtPageTotal", 9890, 135, 310, 200);
    page.Summary = PageValue::PageNumber;
    total.Summary = PageValue::PageTotal;
    word.Alignment = 1;
    page.Alignment = of.Alignment = 2;
    TextControl &name = addLabel(section, "lblDocName", "Velmar 4.0", 0, 135, 8400, 200);
    for (TextControl *text : std::initializer_list<TextControl *>{&name, &word, &page, &of, &total})
        text->Font.Size = FooterFontSize;
}

void asFootnote(TextControl &control) {
    control.Left = 0;
    control.Top = 340;
    control.Width = PageWidth;
    control.Height = 200;
    control.Font.Size = FooterFontSize;
}

void asHeading(TextControl &control, int level) {
    control.HeadingLevel = mdiVelmar::instance().bBatchPrint ? level + 1 : level;
    control.Font.Bold = true;
    control.Font.Size = level == 1 ? 13 : 10;
    control.ForeColor = HeadingColour;
}

void asCaption(TextControl &control) {
    control.Alignment = 2;
    control.BackStyle = 1;
    control.BackColor = CaptionBackColour;
    control.Border = BorderStyles::all();
    control.Font.Size = TableFontSize;
}

void asCell(TextControl &control) {
    control.Alignment = 2;
    control.VerticalAlignment = 1;
    control.Border = BorderStyles::all();
    control.Font.Size = TableFontSize;
}

void nameMaterial(Label &title, const Material &material) {
    if (!mdiVelmar::instance().bBatchPrint) return;
    title.Width = BatchTitleWidth;
    title.Text += "     " + material.Name() + '_' + material.Number();
}

int rightEdge(const Control &control) {
    return control.Left + control.Width;
}

int bottomEdge(const Control &control) {
    return control.Top + control.Height;
}

} // namespace ReportLayout
