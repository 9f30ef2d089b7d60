// The collection of loaded forms.
#pragma once

#include <functional>
#include <vector>

#include <QPointer>
#include <QWidget>

class FormBase;

/// A picture of the collection at one moment, in the order in which the forms were loaded:
/// `for (FormBase &form : Forms())`. A form that is unloaded before its turn is passed over, and the form at
/// hand may unload itself or others.
class Forms {
    struct Entry {
        QPointer<QWidget> widget;
        FormBase *form = nullptr;
        bool isThere() const;
    };

public:
    class iterator {
    public:
        iterator(const std::vector<Entry> &entries, std::size_t at);
        FormBase &operator*() const { return *(*m_entries)[m_at].form; }
        iterator &operator++();
        bool operator!=(const iterator &other) const { return m_at != other.m_at; }

    private:
        void skipUnloaded();
        const std::vector<Entry> *m_entries;
        std::size_t m_at;
    };

    Forms();
    iterator begin() const { return {m_entries, 0}; }
    iterator end() const { return {m_entries, m_entries.size()}; }

    static int Count();
    /// The first loaded form of that name, or null.
    static FormBase *byName(const QString &name);
    /// The form activated last, or null.
    static FormBase *active();
    /// Called when the last form has been unloaded.
    static void setWhenEmpty(std::function<void()> procedure);

private:
    friend class FormBase;
    static void add(FormBase &form);
    static void remove(FormBase &form);
    static std::vector<Entry> &loaded();

    std::vector<Entry> m_entries;
};
