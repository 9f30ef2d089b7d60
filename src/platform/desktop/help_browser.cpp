#include "platform/desktop/help_browser.h"

#include <QHelpEngineCore>

HelpBrowser::HelpBrowser(const QHelpEngineCore &engine, QWidget *parent)
    : QTextBrowser(parent)
    , m_engine(engine) {
    // The pages are drawn for white paper, whatever the desktop's colours.
    QPalette paper = palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    setPalette(paper);
    // A link takes the desktop's colour at the reading of the page, not that of this palette.
    document()->setDefaultStyleSheet(QStringLiteral("a { color: #0b57a4; }"));
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name) {
    const QUrl url = name.isRelative() ? m_page.resolved(name) : name;
    if (type == QTextDocument::HtmlResource) m_page = url;
    if (url.scheme() == QLatin1String("qthelp")) return m_engine.fileData(url);
    return QTextBrowser::loadResource(type, url);
}
