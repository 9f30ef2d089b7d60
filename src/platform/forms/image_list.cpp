#include "platform/forms/image_list.h"

#include <QFileInfo>

#include "platform/runtime/runtime_error.h"

int ImageList::Add(const QString &picture) {
    if (!QFileInfo::exists(picture)) throw RuntimeError::ofFile(53, picture);
    m_pictures.push_back(picture);
    return Count();
}

QIcon ImageList::ListImages(int index) const {
    return QIcon(at(index));
}

QString ImageList::Source(int index) const {
    return at(index);
}

const QString &ImageList::at(int index) const {
    if (index < 1 || index > Count()) throw RuntimeError(35600, QStringLiteral("Index out of bounds"));
    return m_pictures[static_cast<std::size_t>(index - 1)];
}
