// Values as bytes: what waits for being looked at or written takes a tenth of the room.
#pragma once

#include <iterator>
#include <memory>
#include <vector>

#include <QByteArray>
#include <QList>

#include "platform/printing/element.h"

namespace Printing {

/// What many elements have in common, kept once for all lists of a document. Only grows.
class PackedStore {
public:
    int styleNumber(const TextStyle &style);
    int pictureNumber(const Picture &picture);
    const TextStyle &style(int number) const { return m_styles[std::size_t(number)]; }
    const Picture &picture(int number) const { return m_pictures[std::size_t(number)]; }

private:
    /// Without the texts for the outline, of which each is another.
    std::vector<TextStyle> m_styles;
    std::vector<Picture> m_pictures;
};

/// Behind `bytes`, with the box moved by `offset`.
void pack(QByteArray &bytes, PackedStore &store, const Element &element, const QPoint &offset = {});
void pack(QByteArray &bytes, PackedStore &store, const Block &block);
/// `bytes` points to what pack() wrote, and behind it afterwards.
void unpack(const char *&bytes, const PackedStore &store, Element &element);
void unpack(const char *&bytes, const PackedStore &store, Block &block);

/// A list of elements or blocks that makes each anew when it is asked for. A copy shares the bytes.
template <class Value>
class PackedList {
public:
    class Iterator {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = Value;
        using difference_type = std::ptrdiff_t;
        using pointer = const Value *;
        using reference = Value;

        Iterator(const PackedList &list, std::size_t index)
            : m_list(&list)
            , m_index(index) {}
        Value operator*() const { return (*m_list)[m_index]; }
        Iterator &operator++() {
            ++m_index;
            return *this;
        }
        Iterator operator++(int) { return {*m_list, m_index++}; }
        bool operator==(const Iterator &other) const { return m_index == other.m_index; }

    private:
        const PackedList *m_list;
        std::size_t m_index;
    };

    explicit PackedList(std::shared_ptr<PackedStore> store = std::make_shared<PackedStore>())
        : m_store(std::move(store)) {}

    /// `more` is what pack() takes beside the value.
    template <class... More>
    void append(const Value &value, const More &...more) {
        m_starts.append(int(m_bytes.size()));
        pack(m_bytes, *m_store, value, more...);
    }
    void clear() {
        m_starts.clear();
        m_bytes.clear();
    }
    /// After the last append().
    void squeeze() {
        m_starts.squeeze();
        m_bytes.squeeze();
    }

    std::size_t size() const { return std::size_t(m_starts.size()); }
    bool empty() const { return m_starts.isEmpty(); }
    /// What the list holds beside the store.
    qsizetype bytes() const { return m_bytes.size() + m_starts.size() * qsizetype(sizeof(int)); }

    Value operator[](std::size_t index) const {
        const char *at = m_bytes.constData() + m_starts[qsizetype(index)];
        Value value;
        unpack(at, *m_store, value);
        return value;
    }
    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, size()}; }
    operator std::vector<Value>() const {
        std::vector<Value> values;
        values.reserve(size());
        values.insert(values.end(), begin(), end());
        return values;
    }

private:
    std::shared_ptr<PackedStore> m_store;
    QByteArray m_bytes;
    QList<int> m_starts;
};

} // namespace Printing
