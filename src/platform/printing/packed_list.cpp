#include "platform/printing/packed_list.h"

#include <algorithm>

namespace Printing {

namespace {

/// In the first byte of a text, below its length.
enum class TextForm { Latin1, Utf16 };

bool isSameStyle(const TextStyle &a, const TextStyle &b) {
    return a.Font == b.Font && a.Border == b.Border && a.Alignment == b.Alignment &&
           a.VerticalAlignment == b.VerticalAlignment && a.BackStyle == b.BackStyle &&
           a.HeadingLevel == b.HeadingLevel && a.KeepWithNext == b.KeepWithNext &&
           a.ForeColor == b.ForeColor && a.BackColor == b.BackColor;
}

/// Seven bits a byte, the lowest first; all but the last byte have the eighth set.
class Packer {
public:
    Packer(QByteArray &bytes, PackedStore &store)
        : m_bytes(bytes)
        , m_store(store) {}

    void count(std::size_t value) {
        for (; value >= 0x80; value >>= 7)
            m_bytes.append(char(value | 0x80));
        m_bytes.append(char(value));
    }
    /// Small ones of either sign stay small.
    void number(int value) {
        const unsigned sign = value < 0 ? ~0U : 0U;
        count((unsigned(value) << 1) ^ sign);
    }
    void flags(std::initializer_list<bool> flags) {
        std::size_t all = 0;
        for (auto flag = std::rbegin(flags); flag != std::rend(flags); ++flag)
            all = all << 1 | (*flag ? 1 : 0);
        count(all);
    }
    void size(const QSize &value) {
        number(value.width());
        number(value.height());
    }
    void text(const QString &text) {
        const bool isLatin1 =
            std::all_of(text.begin(), text.end(), [](QChar sign) { return sign.unicode() < 0x100; });
        const auto form = std::size_t(isLatin1 ? TextForm::Latin1 : TextForm::Utf16);
        count(std::size_t(text.size()) << 1 | form);
        if (isLatin1)
            for (const QChar sign : text)
                m_bytes.append(char(sign.unicode()));
        else
            m_bytes.append(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
    }
    void line(const TextLine &line, const QString &text);
    void element(const Element &element, const QPoint &offset);
    void row(const Row &row);

private:
    QByteArray &m_bytes;
    PackedStore &m_store;
};

class Unpacker {
public:
    Unpacker(const char *&bytes, const PackedStore &store)
        : m_at(bytes)
        , m_store(store) {}

    std::size_t count() {
        std::size_t value = 0;
        for (int shift = 0;; shift += 7) {
            const auto byte = static_cast<unsigned char>(*m_at++);
            value |= std::size_t(byte & 0x7F) << shift;
            if (byte < 0x80) return value;
        }
    }
    int number() {
        const auto value = unsigned(count());
        return int(value >> 1 ^ ((value & 1) != 0 ? ~0U : 0U));
    }
    void flags(std::initializer_list<bool *> flags) {
        std::size_t all = count();
        for (bool *flag : flags) {
            *flag = (all & 1) != 0;
            all >>= 1;
        }
    }
    QSize size() {
        const int width = number();
        return {width, number()};
    }
    QString text() {
        const std::size_t head = count();
        const auto length = qsizetype(head >> 1);
        if (length == 0) return {};
        if (TextForm(head & 1) == TextForm::Latin1) {
            const char *begin = m_at;
            m_at += length;
            return QString::fromLatin1(begin, length);
        }
        QString text(length, Qt::Uninitialized);
        std::copy_n(m_at, 2 * length, reinterpret_cast<char *>(text.data()));
        m_at += 2 * length;
        return text;
    }
    TextLine line(const QString &text);
    void element(Element &element);
    Row row();

private:
    const char *&m_at;
    const PackedStore &m_store;
};

/// Most lines are a part of the text: those behind a line end or with an ellipsis may not be.
bool isPartOf(const QString &text, const TextLine &line) {
    return line.start >= 0 && line.start <= text.size() &&
           QStringView(text).mid(line.start).startsWith(line.text);
}

void Packer::line(const TextLine &line, const QString &text) {
    number(line.start);
    const bool isPart = isPartOf(text, line);
    count(std::size_t(line.text.size()) << 1 | (isPart ? 1 : 0));
    if (!isPart) this->text(line.text);
    for (const int value : {line.left, line.top, line.width, line.height, line.ascent})
        number(value);
}

TextLine Unpacker::line(const QString &text) {
    TextLine line;
    line.start = number();
    const std::size_t head = count();
    line.text = (head & 1) != 0 ? text.mid(line.start, qsizetype(head >> 1)) : this->text();
    for (int *value : {&line.left, &line.top, &line.width, &line.height, &line.ascent})
        *value = number();
    return line;
}

void Packer::element(const Element &element, const QPoint &offset) {
    const bool hasPicture = !element.picture.isNull();
    const bool hasPictureSize = element.pictureSize != QSize();
    const bool hasTexts = !element.OutlineText.isEmpty() || !element.alternativeText.isEmpty();
    flags({hasPicture, hasPictureSize, hasTexts, element.isRule});
    count(std::size_t(m_store.styleNumber(element)));
    number(element.box.left() + offset.x());
    number(element.box.top() + offset.y());
    size(element.box.size());
    text(element.text);
    count(element.lines.size());
    for (const TextLine &each : element.lines)
        line(each, element.text);
    count(std::size_t(element.pageValue));
    if (hasPicture) count(std::size_t(m_store.pictureNumber(element.picture)));
    if (hasPictureSize) size(element.pictureSize);
    if (!hasTexts) return;
    text(element.OutlineText);
    text(element.alternativeText);
}

void Unpacker::element(Element &element) {
    bool hasPicture = false;
    bool hasPictureSize = false;
    bool hasTexts = false;
    flags({&hasPicture, &hasPictureSize, &hasTexts, &element.isRule});
    static_cast<TextStyle &>(element) = m_store.style(int(count()));
    const int left = number();
    const int top = number();
    element.box = QRect(QPoint(left, top), size());
    element.text = text();
    const std::size_t lines = count();
    element.lines.reserve(lines);
    for (std::size_t i = 0; i < lines; ++i)
        element.lines.push_back(line(element.text));
    element.pageValue = PageValue(count());
    if (hasPicture) element.picture = m_store.picture(int(count()));
    if (hasPictureSize) element.pictureSize = size();
    if (!hasTexts) return;
    element.OutlineText = text();
    element.alternativeText = text();
}

void Packer::row(const Row &row) {
    flags({row.isHeading, row.keepWithNext, row.ruleAbove, row.ruleBelow});
    count(row.cells.size());
    for (const Element &cell : row.cells)
        element(cell, {});
}

Row Unpacker::row() {
    Row row;
    flags({&row.isHeading, &row.keepWithNext, &row.ruleAbove, &row.ruleBelow});
    row.cells.resize(count());
    for (Element &cell : row.cells)
        element(cell);
    return row;
}

} // namespace

int PackedStore::styleNumber(const TextStyle &style) {
    const auto known = std::find_if(m_styles.begin(), m_styles.end(),
                                    [&](const TextStyle &other) { return isSameStyle(style, other); });
    const auto number = int(known - m_styles.begin());
    if (known == m_styles.end()) {
        m_styles.push_back(style);
        m_styles.back().OutlineText.clear();
    }
    return number;
}

int PackedStore::pictureNumber(const Picture &picture) {
    const auto known = std::find_if(m_pictures.begin(), m_pictures.end(),
                                    [&](const Picture &other) { return picture.isSame(other); });
    const auto number = int(known - m_pictures.begin());
    if (known == m_pictures.end()) m_pictures.push_back(picture);
    return number;
}

void pack(QByteArray &bytes, PackedStore &store, const Element &element, const QPoint &offset) {
    Packer(bytes, store).element(element, offset);
}

void pack(QByteArray &bytes, PackedStore &store, const Block &block) {
    Packer packer(bytes, store);
    packer.count(std::size_t(block.kind));
    packer.count(block.rows.size());
    for (const Row &row : block.rows)
        packer.row(row);
}

void unpack(const char *&bytes, const PackedStore &store, Element &element) {
    Unpacker(bytes, store).element(element);
}

void unpack(const char *&bytes, const PackedStore &store, Block &block) {
    Unpacker unpacker(bytes, store);
    block.kind = Block::Kind(unpacker.count());
    const std::size_t rows = unpacker.count();
    for (std::size_t i = 0; i < rows; ++i)
        block.rows.push_back(unpacker.row());
}

} // namespace Printing
