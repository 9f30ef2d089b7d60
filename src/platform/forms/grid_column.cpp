#include "platform/forms/grid_column.h"

#include <QFileInfo>
#include <QSvgRenderer>

GridColumn::GridColumn(std::function<void(const GridColumn &)> changed)
    : m_changed(std::move(changed)) {}

template <typename T>
void GridColumn::set(T &member, const T &value) {
    if (member == value) return;
    member = value;
    m_changed(*this);
}

void GridColumn::setCaption(const QString &caption) {
    set(m_caption, caption);
}

void GridColumn::setDataField(const QString &field) {
    set(m_dataField, field);
}

void GridColumn::setWidth(double twips) {
    set(m_width, twips);
}

void GridColumn::setVisible(bool visible) {
    set(m_visible, visible);
}

void GridColumn::setAlignment(Qt::Alignment alignment) {
    set(m_alignment, alignment);
}

void GridColumn::setHeadAlignment(Qt::Alignment alignment) {
    set(m_headAlignment, alignment);
}

void GridColumn::setWordWrap(bool wrap) {
    set(m_wordWrap, wrap);
}

void GridColumn::setHeadPicture(const QString &svgFile) {
    if (m_headPicture == svgFile) return;
    m_headPicture = svgFile;
    m_picture = QFileInfo::exists(svgFile) ? std::make_shared<QSvgRenderer>(svgFile) : nullptr;
    m_changed(*this);
}

void GridColumn::setPicturePosition(HeadPicturePosition position) {
    set(m_picturePosition, position);
}

QSvgRenderer *GridColumn::shownPicture() const {
    const bool shown =
        m_picturePosition == HeadPicturePosition::PictureOnly && m_picture && m_picture->isValid();
    return shown ? m_picture.get() : nullptr;
}
