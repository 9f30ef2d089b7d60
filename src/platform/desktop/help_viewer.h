// The window in which help is read.
#pragma once

#include <QDeadlineTimer>
#include <QMainWindow>
#include <QTemporaryDir>
#include <QUrl>

#include "platform/desktop/help.h"

class HelpBrowser;
class QHelpEngine;
class QTabWidget;

/// Not one of the program's forms: it stays in use beside a modal dialog, outlives it and ends with the
/// program.
class HelpViewer : public QMainWindow {
    Q_OBJECT

public:
    explicit HelpViewer(const QString &file);
    ~HelpViewer() override;

    QString file() const { return m_file; }
    /// Empty when the help can be read, else what is wrong with it.
    QString failure() const { return m_failure; }
    void open(HelpCommand command, const QString &topic);

protected:
    bool event(QEvent *event) override;

private:
    bool isAtWork() const;
    void build();
    QWidget *buildIndexPage();
    QWidget *buildSearchPage();
    /// The first topic of the contents for a name that no page has.
    QUrl urlOfTopic(const QString &topic) const;
    QUrl firstTopic() const;
    void followLink(const QUrl &url);
    /// For what the search page asks, as soon as the search before has ended.
    void search();
    void searchEnded();

    QString m_file;
    QString m_failure;
    QString m_namespace;
    // The engine keeps its search index in a file, which is made anew in each run.
    QTemporaryDir m_folder;
    QHelpEngine *m_engine = nullptr;
    QTabWidget *m_pages = nullptr;
    HelpBrowser *m_browser = nullptr;
    bool m_searching = false;
    QDeadlineTimer m_searchDeadline;
    bool m_searchesAgain = false;
    bool m_fitted = false;
};
