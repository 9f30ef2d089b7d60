#include "platform/forms/toolbar_button.h"

#include <QMenu>
#include <QToolButton>

#include "platform/forms/image_list.h"
#include "platform/forms/toolbar.h"
#include "platform/runtime/runtime_error.h"

ButtonMenu::ButtonMenu(const QString &key, const QString &text, int index, QObject *parent)
    : QAction(text, parent)
    , m_key(key)
    , m_index(index) {}

ToolbarButton::ToolbarButton(Toolbar &toolbar, const QString &key, int index, ToolbarButtonStyle style)
    : QObject(&toolbar)
    , m_toolbar(toolbar)
    , m_key(key)
    , m_index(index)
    , m_style(style) {
    const QString name = QStringLiteral("%1(%2)").arg(toolbar.objectName(), key);
    if (style == tbrSeparator) {
        m_place = toolbar.addSeparator();
        m_place->setObjectName(name);
        return;
    }
    m_widget = new QToolButton(&toolbar);
    m_widget->setObjectName(name);
    m_widget->setAutoRaise(true);
    m_widget->setIconSize(toolbar.iconSize());
    connect(&toolbar, &QToolBar::iconSizeChanged, m_widget, &QToolButton::setIconSize);
    m_place = toolbar.addWidget(m_widget);
    connect(m_widget, &QToolButton::clicked, this, [this] { m_toolbar.clicked(*this); });
    if (style == tbrDropdown) {
        m_widget->setPopupMode(QToolButton::MenuButtonPopup);
        m_widget->setMenu(new QMenu(m_widget));
    }
}

void ToolbarButton::setValue(ToolbarButtonValue value) {
    m_value = value;
    if (m_widget == nullptr) return;
    // Only a checkable button can look pressed, and a checkable one turns by itself on every click.
    m_widget->setCheckable(value == tbrPressed || m_style == tbrCheck || m_style == tbrButtonGroup);
    m_widget->setChecked(value == tbrPressed);
}

void ToolbarButton::setToolTipText(const QString &text) {
    m_toolTip = text;
    if (m_widget == nullptr) return;
    m_widget->setToolTip(text);
    // The picture says nothing to a screen reader, so the last text stays when the tips are taken away.
    if (!text.isEmpty()) m_widget->setAccessibleName(text);
}

bool ToolbarButton::Visible() const {
    return m_place->isVisible();
}

void ToolbarButton::setVisible(bool visible) {
    m_place->setVisible(visible);
}

bool ToolbarButton::Enabled() const {
    return m_widget == nullptr ? m_place->isEnabled() : m_widget->isEnabled();
}

void ToolbarButton::setEnabled(bool enabled) {
    m_place->setEnabled(enabled);
    if (m_widget != nullptr) m_widget->setEnabled(enabled);
}

void ToolbarButton::setImage(int index) {
    m_image = index;
    showPicture();
}

void ToolbarButton::showPicture() {
    if (m_widget == nullptr || m_image == 0 || m_toolbar.imageList() == nullptr) return;
    m_widget->setIcon(m_toolbar.imageList()->ListImages(m_image));
}

ButtonMenu &ToolbarButton::AddMenu(const QString &key, const QString &text) {
    auto *entry = new ButtonMenu(key, text, MenuCount() + 1, this);
    if (m_widget != nullptr && m_widget->menu() != nullptr) m_widget->menu()->addAction(entry);
    entry->setObjectName(QStringLiteral("%1(%2)(%3)").arg(m_toolbar.objectName(), m_key, key));
    connect(entry, &QAction::triggered, this, [this, entry] { Q_EMIT m_toolbar.ButtonMenuClick(entry); });
    m_menu.push_back(entry);
    return *entry;
}

ButtonMenu &ToolbarButton::ButtonMenus(int index) const {
    if (index < 1 || index > MenuCount()) throw RuntimeError(35600, QStringLiteral("Index out of bounds"));
    return *m_menu[static_cast<std::size_t>(index - 1)];
}

ButtonMenu &ToolbarButton::ButtonMenus(const QString &key) const {
    for (ButtonMenu *entry : m_menu)
        if (entry->Key() == key) return *entry;
    throw RuntimeError(35601, QStringLiteral("Element not found"));
}
