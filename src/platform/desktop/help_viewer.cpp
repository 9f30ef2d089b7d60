#include "platform/desktop/help_viewer.h"

#include <utility>

#include <QCoreApplication>
#include <QDesktopServices>
#include <QHelpContentModel>
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QLabel>
#include <QLineEdit>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include "platform/desktop/help_browser.h"
#include "platform/forms/placement.h"
#include "platform/forms/screen.h"
#include "platform/runtime/app.h"

namespace {
constexpr int LongestWork = 2000; // milliseconds; a search that fails does not say that it has ended
}

HelpViewer::HelpViewer(const QString &file)
    : m_file(file) {
    setObjectName(QStringLiteral("HelpViewer"));
    setWindowTitle(App::current().title + QLatin1String(" Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_namespace = QHelpEngineCore::namespaceName(file);
    m_engine = new QHelpEngine(m_folder.filePath(QStringLiteral("help.qhc")), this);
    m_engine->setReadOnly(false);
    m_engine->setUsesFilterEngine(true);
    if (m_namespace.isEmpty() || !m_engine->setupData() || !m_engine->registerDocumentation(file)) {
        m_failure = m_namespace.isEmpty() ? QStringLiteral("it is no help file") : m_engine->error();
        return;
    }
    build();
}

HelpViewer::~HelpViewer() {
    // The engine reads in threads of its own, and cannot be taken apart while one is at work.
    m_searchesAgain = false;
    const QDeadlineTimer deadline(LongestWork);
    while (isAtWork() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    delete takeCentralWidget(); // shows the engine's models
    delete m_engine;            // writes into the folder
}

bool HelpViewer::isAtWork() const {
    return m_searching || m_engine->contentModel()->isCreatingContents() ||
           m_engine->indexModel()->isCreatingIndex();
}

void HelpViewer::build() {
    m_browser = named(new HelpBrowser(*m_engine), QStringLiteral("HelpText"), QStringLiteral("Help text"));
    m_browser->setOpenLinks(false);
    connect(m_browser, &QTextBrowser::anchorClicked, this, &HelpViewer::followLink);

    auto *contents = m_engine->contentWidget();
    named(contents, QStringLiteral("HelpContents"), QStringLiteral("Contents"));
    connect(contents, &QHelpContentWidget::linkActivated, this, &HelpViewer::followLink);
    const auto markTopic = [contents](const QUrl &topic) {
        contents->setCurrentIndex(contents->indexOf(topic));
    };
    connect(m_browser, &QTextBrowser::sourceChanged, this, markTopic);
    connect(m_engine->contentModel(), &QHelpContentModel::contentsCreated, this, [this, contents, markTopic] {
        contents->expandAll();
        if (m_browser->source().isEmpty()) m_browser->setSource(firstTopic());
        markTopic(m_browser->source());
    });
    m_pages = named(new QTabWidget, QStringLiteral("HelpPages"), tr("Contents, index and search"));
    m_pages->addTab(contents, QStringLiteral("&Contents"));
    m_pages->addTab(buildIndexPage(), QStringLiteral("&Index"));
    m_pages->addTab(buildSearchPage(), QStringLiteral("&Search"));
    connect(m_pages, &QTabWidget::currentChanged, this, [this] {
        // Arrows go from tab to tab; a page that is asked for by its letter is to be used.
        if (!m_pages->tabBar()->hasFocus()) m_pages->currentWidget()->setFocus();
    });

    auto *splitter = new QSplitter;
    splitter->addWidget(m_pages);
    splitter->addWidget(m_browser);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({290, 710});
    setCentralWidget(splitter);

    QToolBar *bar = addToolBar(QStringLiteral("Navigation"));
    bar->setMovable(false);
    const auto addButton = [&](const char *text, const QKeySequence &keys) {
        QAction *action = bar->addAction(QLatin1String(text));
        action->setObjectName(QLatin1String("Help") + QLatin1String(text));
        action->setShortcut(keys);
        return action;
    };
    QAction *back = addButton("Back", QKeySequence::Back);
    QAction *forward = addButton("Forward", QKeySequence::Forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QAction::triggered, m_browser, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, m_browser, &QTextBrowser::forward);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    auto *close = new QAction(this);
    close->setShortcut(Qt::Key_Escape);
    addAction(close);
    connect(close, &QAction::triggered, this, &QWidget::close);
    resize(1000, 680);
    Screen::fit(*this);
}

bool HelpViewer::event(QEvent *event) {
    // Once, when the desktop has put its frame around the window.
    if (event->type() == QEvent::WindowActivate && !std::exchange(m_fitted, true)) Screen::fit(*this);
    return QMainWindow::event(event);
}

QWidget *HelpViewer::buildIndexPage() {
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    auto *filter = named(new QLineEdit, QStringLiteral("HelpIndexFilter"), QStringLiteral("Look for"));
    auto *label = new QLabel(QStringLiteral("&Look for:"));
    label->setBuddy(filter);
    QHelpIndexWidget *index = m_engine->indexWidget();
    named(index, QStringLiteral("HelpIndex"), QStringLiteral("Index"));
    layout->addWidget(label);
    layout->addWidget(filter);
    layout->addWidget(index);
    page->setFocusProxy(filter);
    connect(filter, &QLineEdit::textChanged, index,
            [index](const QString &text) { index->filterIndices(text); });
    connect(filter, &QLineEdit::returnPressed, index, &QHelpIndexWidget::activateCurrentItem);
    connect(index, &QHelpIndexWidget::documentActivated, this,
            [this](const QHelpLink &link) { followLink(link.url); });
    connect(index, &QHelpIndexWidget::documentsActivated, this,
            [this](const QList<QHelpLink> &links) { followLink(links.value(0).url); });
    return page;
}

QWidget *HelpViewer::buildSearchPage() {
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    QHelpSearchEngine *search = m_engine->searchEngine();
    named(search->queryWidget(), QStringLiteral("HelpSearch"), QStringLiteral("Search"));
    named(search->resultWidget(), QStringLiteral("HelpSearchResult"), QStringLiteral("Topics found"));
    layout->addWidget(search->queryWidget());
    layout->addWidget(search->resultWidget(), 1);
    connect(search->queryWidget(), &QHelpSearchQueryWidget::search, this, &HelpViewer::search);
    connect(search, &QHelpSearchEngine::searchingFinished, this, &HelpViewer::searchEnded);
    connect(search->resultWidget(), &QHelpSearchResultWidget::requestShowLink, this, &HelpViewer::followLink);
    page->setFocusProxy(search->queryWidget());
    search->reindexDocumentation();
    return page;
}

/// Of two searches at a time one would end unseen: a search that is cancelled in time says nothing.
void HelpViewer::search() {
    m_searchesAgain = m_searching && !m_searchDeadline.hasExpired();
    if (m_searchesAgain) return;
    m_searching = true;
    m_searchDeadline.setRemainingTime(LongestWork);
    m_engine->searchEngine()->search(m_engine->searchEngine()->queryWidget()->searchInput());
}

void HelpViewer::searchEnded() {
    m_searching = false;
    if (m_searchesAgain) search();
}

void HelpViewer::open(HelpCommand command, const QString &topic) {
    if (command == HelpTopic)
        m_browser->setSource(urlOfTopic(topic));
    else
        m_pages->setCurrentIndex(command - HelpContents);
    show();
    raise();
    activateWindow();
    QWidget *used = command == HelpTopic ? m_browser : m_pages->currentWidget();
    used->setFocus();
}

QUrl HelpViewer::urlOfTopic(const QString &topic) const {
    for (const QUrl &page : m_engine->files(m_namespace, QString()))
        if (page.fileName().compare(topic, Qt::CaseInsensitive) == 0) return page;
    return firstTopic();
}

QUrl HelpViewer::firstTopic() const {
    const QHelpContentModel *contents = m_engine->contentModel();
    const QHelpContentItem *first = contents->contentItemAt(contents->index(0, 0));
    return first != nullptr ? first->url() : QUrl();
}

void HelpViewer::followLink(const QUrl &url) {
    const QUrl target = url.isRelative() ? m_browser->source().resolved(url) : url;
    if (target.scheme() == QLatin1String("qthelp"))
        m_browser->setSource(target);
    else if (target.isValid())
        QDesktopServices::openUrl(target);
}
