#include "platform/forms/menu_entry.h"

#include <QMenu>

#include "platform/forms/placement.h"
#include "platform/runtime/runtime_error.h"

MenuEntry::MenuEntry(const QString &name, const QString &caption, QObject *parent)
    : QAction(caption, parent) {
    setObjectName(name);
    setMenuRole(QAction::NoRole);
    connect(this, &QAction::triggered, this, &MenuEntry::triggeredByUser);
}

void MenuEntry::setChecked(bool checked) {
    m_checked = checked;
    if (checked) setCheckable(true);
    QAction::setChecked(checked);
}

void MenuEntry::triggeredByUser() {
    QAction::setChecked(m_checked);
    Q_EMIT Click();
}

QMenu *MenuEntry::SubMenu() {
    if (QMenu *existing = menu<QMenu *>()) return existing;
    auto *made = new QMenu(qobject_cast<QWidget *>(parent()));
    made->setObjectName(objectName() + QLatin1String("Menu"));
    made->setToolTipsVisible(false);
    setMenu(made);
    connect(this, &QObject::destroyed, made, &QObject::deleteLater);
    return made;
}

MenuEntry *MenuEntry::add(const QString &name, const QString &caption, const QKeySequence &shortcut) {
    auto *entry = new MenuEntry(name, caption, SubMenu());
    if (!shortcut.isEmpty()) entry->setShortcut(shortcut);
    SubMenu()->addAction(entry);
    return entry;
}

void MenuEntry::addSeparator() {
    SubMenu()->addSeparator();
}

MenuArray::MenuArray(const QString &name, QObject *parent)
    : QObject(parent) {
    setObjectName(name);
}

MenuEntry &MenuArray::add(MenuEntry *menu, int index, const QString &caption, const QKeySequence &shortcut) {
    MenuEntry *entry = menu->add(elementName(objectName(), index), caption, shortcut);
    m_entries[index] = entry;
    connect(entry, &MenuEntry::Click, this, [this, index] { Q_EMIT Click(index); });
    return *entry;
}

MenuEntry &MenuArray::operator()(int index) const {
    const auto found = m_entries.find(index);
    if (found == m_entries.end())
        throw RuntimeError(340, QStringLiteral("Control array element '%1' doesn't exist").arg(index));
    return *found->second;
}
