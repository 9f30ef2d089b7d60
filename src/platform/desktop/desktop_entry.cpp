#include "platform/desktop/desktop_entry.h"

#include <algorithm>

#include <QMimeDatabase>
#include <QUrl>

#include <gio/gio.h>

namespace {

using Context = std::unique_ptr<GAppLaunchContext, decltype(&g_object_unref)>;

/// A start script may set variables for this program alone, and names them: others would be led to the
/// wrong libraries.
Context contextOfOthers() {
    Context context(g_app_launch_context_new(), g_object_unref);
    for (const QByteArray &name : qgetenv("ONLY_FOR_THIS_PROGRAM").split(' '))
        if (!name.isEmpty()) g_app_launch_context_unsetenv(context.get(), name.constData());
    return context;
}

} // namespace

DesktopEntry::DesktopEntry(GAppInfo *application)
    : m_application(application, g_object_unref) {}

QList<DesktopEntry> DesktopEntry::all() {
    QList<DesktopEntry> entries;
    GList *const applications = g_app_info_get_all();
    for (const GList *item = applications; item != nullptr; item = item->next) {
        const DesktopEntry entry(static_cast<GAppInfo *>(item->data));
        if (g_app_info_should_show(entry.m_application.get())) entries.append(entry);
    }
    g_list_free(applications);
    std::sort(entries.begin(), entries.end(), [](const DesktopEntry &one, const DesktopEntry &other) {
        return one.name().localeAwareCompare(other.name()) < 0;
    });
    return entries;
}

std::optional<DesktopEntry> DesktopEntry::forFile(const QString &file) {
    const QMimeType type = QMimeDatabase().mimeTypeForFile(file);
    QStringList types = QStringList(type.name()) + type.aliases() + type.allAncestors();
    // Everything derives from a mere row of bytes: who can open that can open nothing in particular.
    types.removeAll(QStringLiteral("application/octet-stream"));
    for (const QString &name : types)
        if (GAppInfo *application = g_app_info_get_default_for_type(name.toUtf8().constData(), FALSE))
            return DesktopEntry(application);
    return {};
}

QString DesktopEntry::name() const {
    return QString::fromUtf8(g_app_info_get_name(m_application.get()));
}

bool DesktopEntry::open(const QString &file) const {
    QByteArray address = QUrl::fromLocalFile(file).toEncoded();
    GList addresses = {address.data(), nullptr, nullptr};
    return g_app_info_launch_uris(m_application.get(), &addresses, contextOfOthers().get(), nullptr) != FALSE;
}
