// Pictures by number.
#pragma once

#include <vector>

#include <QIcon>
#include <QString>

/// Numbers begin with 1; another one raises 35600.
class ImageList {
public:
    /// A picture file or resource. Returns its number; raises 53 where there is none.
    int Add(const QString &picture);
    int Count() const { return static_cast<int>(m_pictures.size()); }
    QIcon ListImages(int index) const;
    /// The file or resource that it came from.
    QString Source(int index) const;

private:
    const QString &at(int index) const;
    std::vector<QString> m_pictures;
};
