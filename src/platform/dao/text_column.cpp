#include "platform/dao/text_column.h"

#include <string_view>

#include "platform/dao/like_pattern.h"
#include "platform/dao/text_folding.h"

void TextColumn::append(const char *text, qsizetype size) {
    m_starts.push_back(m_texts.size());
    m_isText.push_back(text != nullptr);
    if (text) {
        QByteArray folded;
        foldText(text, size, folded);
        m_texts += folded;
    }
    m_texts += '\0';
}

RowMarks TextColumn::matching(const LikePattern &pattern) const {
    RowMarks marks(m_isText.size(), 0);
    if (const std::optional<QByteArray> &contained = pattern.containedText();
        contained && !contained->contains('\0')) {
        markContaining(*contained, marks);
        return marks;
    }
    for (std::size_t i = 0; i < m_starts.size(); ++i) {
        if (!m_isText[i + 1]) continue;
        const qsizetype end = i + 1 < m_starts.size() ? m_starts[i + 1] : m_texts.size();
        marks[i + 1] = pattern.matches(m_texts.constData() + m_starts[i], end - m_starts[i] - 1);
    }
    return marks;
}

void TextColumn::markContaining(const QByteArray &text, RowMarks &marks) const {
    if (text.isEmpty()) {
        marks = m_isText;
        return;
    }
    const std::string_view texts(m_texts.constData(), static_cast<std::size_t>(m_texts.size()));
    const std::string_view sought(text.constData(), static_cast<std::size_t>(text.size()));
    std::size_t row = 0;
    for (std::size_t at = texts.find(sought); at != std::string_view::npos; at = texts.find(sought, at)) {
        while (row + 1 < m_starts.size() && static_cast<std::size_t>(m_starts[row + 1]) <= at)
            ++row;
        marks[row + 1] = 1;
        if (row + 1 == m_starts.size()) return;
        at = static_cast<std::size_t>(m_starts[row + 1]);
    }
}
