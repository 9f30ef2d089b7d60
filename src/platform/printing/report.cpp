#include "platform/printing/report.h"

#include "platform/printing/composer.h"
#include "platform/printing/paginator.h"
#include "platform/printing/rows.h"
#include "platform/runtime/runtime_error.h"

namespace Printing {

namespace {

Section *find(const std::vector<std::unique_ptr<Section>> &sections, const QString &name) {
    for (const auto &section : sections)
        if (section->Name.compare(name, Qt::CaseInsensitive) == 0) return section.get();
    return nullptr;
}

} // namespace

Report::Report(QObject *parent)
    : QObject(parent) {}

Report::~Report() = default;

Section &Report::AddSection(SectionType type, const QString &name) {
    if (find(m_sections, name)) throw RuntimeError(457);
    m_sections.push_back(std::make_unique<Section>(type, name));
    return *m_sections.back();
}

Section &Report::Sections(const QString &name) const {
    Section *section = find(m_sections, name);
    if (!section) throw RuntimeError(5, QStringLiteral("There is no section '%1' in the report").arg(name));
    return *section;
}

int Report::PrintWidth() const {
    return PageSetup.PaperWidth - PageSetup.LeftMargin - PageSetup.RightMargin;
}

const Document &Report::Run() {
    const Bands bands = Composer::compose(*this);
    m_document = Paginator::paginate(*this, bands);
    m_document.blocks = blocksOf(bands);
    m_document.title = DocumentName;
    m_document.author = Author;
    m_document.caption = Caption;
    ReportEnd();
    return m_document;
}

} // namespace Printing
