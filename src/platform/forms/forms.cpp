#include "platform/forms/forms.h"

#include <algorithm>

#include "platform/forms/form_base.h"

namespace {

std::function<void()> theEnd;

} // namespace

bool Forms::Entry::isThere() const {
    return widget && !form->isUnloaded();
}

Forms::iterator::iterator(const std::vector<Entry> &entries, std::size_t at)
    : m_entries(&entries)
    , m_at(at) {
    skipUnloaded();
}

Forms::iterator &Forms::iterator::operator++() {
    ++m_at;
    skipUnloaded();
    return *this;
}

void Forms::iterator::skipUnloaded() {
    while (m_at < m_entries->size() && !(*m_entries)[m_at].isThere())
        ++m_at;
}

Forms::Forms()
    : m_entries(loaded()) {}

int Forms::Count() {
    return static_cast<int>(loaded().size());
}

FormBase *Forms::byName(const QString &name) {
    for (const Entry &entry : loaded())
        if (entry.isThere() && entry.form->Name() == name) return entry.form;
    return nullptr;
}

void Forms::setWhenEmpty(std::function<void()> procedure) {
    theEnd = std::move(procedure);
}

void Forms::add(FormBase &form) {
    loaded().push_back({form.asWidget(), &form});
}

void Forms::remove(FormBase &form) {
    const auto removed = std::erase_if(loaded(), [&](const Entry &entry) { return entry.form == &form; });
    if (removed > 0 && loaded().empty() && theEnd) theEnd();
}

std::vector<Forms::Entry> &Forms::loaded() {
    static std::vector<Entry> forms;
    return forms;
}
