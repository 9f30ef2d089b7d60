// A text browser that reads its pages from a help file.
#pragma once

#include <QTextBrowser>

class QHelpEngineCore;

class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    HelpBrowser(const QHelpEngineCore &engine, QWidget *parent = nullptr);

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    const QHelpEngineCore &m_engine;
    /// While a page is read, source() is still the one before it.
    QUrl m_page;
};
