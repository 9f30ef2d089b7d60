#include "platform/desktop/help_browser.h"

#include <QHelpEngineCore>

HelpBrowser::HelpBrowser(const QHelpEngineCore &engine, QWidget *parent)
    : QTextBrowser(parent)
    , m_engine(engine) {}

QVariant HelpBrowser::loadResource(int type, const QUrl &name) {
    const QUrl url = name.isRelative() ? source().resolved(name) : name;
    if (url.scheme() == QLatin1String("qthelp")) return m_engine.fileData(url);
    return QTextBrowser::loadResource(type, url);
}
