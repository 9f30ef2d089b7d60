#include "platform/printing/viewer.h"

#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolBar>
#include <QVBoxLayout>

#include "platform/forms/accessible_roles.h"
#include "platform/forms/busy_pointer.h"
#include "platform/forms/common_dialog.h"
#include "platform/forms/msg_box.h"
#include "platform/printing/arrow_icon.h"
#include "platform/printing/page_painter.h"
#include "platform/printing/page_view.h"
#include "platform/printing/print_output.h"
#include "platform/runtime/runtime_error.h"

namespace Printing {

namespace {

constexpr double ZoomStep = 1.25;
constexpr int FoundMargin = 12;
constexpr QSize ToolIconSize(18, 18);
constexpr int ZoomPercents[] = {25, 50, 75, 100, 125, 150, 200, 300, 400};
// Shows an A4 page at about 100 %.
constexpr QSize WishedSize(920, 1000);

// Of the file that is printed to. What the dialog makes of a title ends at its last dot.
void offerFileName(QPrintDialog &dialog, QString title) {
    auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("filename"));
    if (!edit) return;
    const auto complete = [edit] {
        edit->setText(CommonDialog::withExtension(edit->text(), QStringLiteral(".pdf")));
    };
    edit->setText(QFileInfo(edit->text()).path() + QLatin1Char('/') +
                  title.replace(QLatin1Char('/'), QLatin1Char('_')));
    complete();
    // Before the dialog asks whether a file of that name may be replaced.
    QObject::connect(edit, &QLineEdit::editingFinished, edit, complete);
    QObject::connect(edit, &QLineEdit::textChanged, edit, [edit, complete] {
        if (!edit->hasFocus()) complete();
    });
}

} // namespace

Viewer::Viewer(const Document &document, QWidget *parent)
    : QDialog(parent)
    , m_document(document)
    , m_view(new PageView(m_document, this))
    , m_toolBar(new QToolBar(this)) {
    setWindowFlags(Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    setWindowTitle(document.caption);
    setObjectName(QStringLiteral("Viewer"));
    m_view->setObjectName(QStringLiteral("pages"));
    AccessibleRoles::set(*m_view, QAccessible::Document);
    m_view->setAccessibleName(tr("Pages"));
    m_toolBar->setObjectName(QStringLiteral("toolbar"));
    m_toolBar->setIconSize(ToolIconSize);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_toolBar);
    layout->addWidget(m_view, 1);
    createFileTools();
    createPageTools();
    createZoomTools();
    createFindTools();

    m_choosePrinter = [this](QPrinter &printer) {
        QPrintDialog dialog(&printer, this);
        dialog.setMinMax(1, int(m_document.pages.size()));
        offerFileName(dialog, m_document.title);
        return dialog.exec() == QDialog::Accepted;
    };
    connect(m_view, &PageView::currentPageChanged, this, &Viewer::showPage);
    connect(m_view, &PageView::zoomChanged, this, &Viewer::showZoom);
    openAtReadableSize();
    m_view->setFocus();
}

Viewer::~Viewer() = default;

void Viewer::openAtReadableSize() {
    const QScreen *screen = parentWidget() ? parentWidget()->screen() : QGuiApplication::primaryScreen();
    const QSize available = screen->availableSize() * 0.95;
    resize(WishedSize.boundedTo(available));
    m_view->setFit(PageView::Fit::Width);
}

QAction *Viewer::addTool(const QString &name, const QString &text, const QString &tip,
                         const QKeySequence &key, std::function<void()> act) {
    auto *action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(tip, key.toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, std::move(act));
    m_toolBar->addAction(action);
    QWidget *button = m_toolBar->widgetForAction(action);
    button->setObjectName(name);
    button->setAccessibleName(tip);
    button->setFocusPolicy(Qt::TabFocus);
    return action;
}

void Viewer::addKey(const QKeySequence &key, std::function<void()> act) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, std::move(act));
}

void Viewer::createFileTools() {
    addTool(QStringLiteral("print"), tr("Print..."), tr("Print"), QKeySequence::Print, [this] { print(); });
    addTool(QStringLiteral("save"), tr("Save..."), tr("Save"), QKeySequence::Save, [this] {
        if (m_save) m_save();
    })->setVisible(false);
    m_toolBar->addSeparator();
}

void Viewer::createPageTools() {
    const int pages = int(m_document.pages.size());
    const auto addPageTool = [this](const char *name, const QString &tip, Qt::Key key, Arrow arrow,
                                    std::function<void()> act) {
        addTool(QLatin1String(name), tip, tip, QKeySequence(Qt::CTRL | key), std::move(act))
            ->setIcon(arrowIcon(arrow));
    };
    addPageTool("firstPage", tr("First page"), Qt::Key_Home, Arrow::First, [this] { m_view->goToPage(0); });
    addPageTool("previousPage", tr("Previous page"), Qt::Key_PageUp, Arrow::Previous,
                [this] { m_view->goToPage(m_view->currentPage() - 1); });
    m_page = new QSpinBox(m_toolBar);
    m_page->setObjectName(QStringLiteral("page"));
    m_page->setAccessibleName(tr("Page"));
    m_page->findChild<QLineEdit *>()->setAccessibleName(tr("Page"));
    m_page->setToolTip(tr("Page (Ctrl+G)"));
    m_page->setRange(1, std::max(1, pages));
    m_page->setSuffix(tr(" of %1").arg(pages));
    m_page->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_page->setAlignment(Qt::AlignCenter);
    m_page->setKeyboardTracking(false);
    m_page->installEventFilter(this);
    connect(m_page, &QSpinBox::valueChanged, this, [this](int page) { m_view->goToPage(page - 1); });
    addKey(QKeySequence(Qt::CTRL | Qt::Key_G), [this] {
        m_page->setFocus();
        m_page->selectAll();
    });
    m_toolBar->addWidget(m_page);
    addPageTool("nextPage", tr("Next page"), Qt::Key_PageDown, Arrow::Next,
                [this] { m_view->goToPage(m_view->currentPage() + 1); });
    addPageTool("lastPage", tr("Last page"), Qt::Key_End, Arrow::Last,
                [this, pages] { m_view->goToPage(pages - 1); });
    m_toolBar->addSeparator();
}

void Viewer::createZoomTools() {
    addTool(QStringLiteral("zoomOut"), QString(QChar(0x2212)), tr("Zoom out"), QKeySequence::ZoomOut,
            [this] { m_view->setZoom(m_view->zoom() / ZoomStep); });
    m_zoom = new QComboBox(m_toolBar);
    m_zoom->setObjectName(QStringLiteral("zoom"));
    m_zoom->setAccessibleName(tr("Zoom"));
    m_zoom->setEditable(true);
    m_zoom->lineEdit()->setAccessibleName(tr("Zoom"));
    m_zoom->setInsertPolicy(QComboBox::NoInsert);
    for (const int percent : ZoomPercents)
        m_zoom->addItem(QStringLiteral("%1 %").arg(percent));
    connect(m_zoom, &QComboBox::activated, this, [this] { zoomToText(); });
    m_zoom->lineEdit()->installEventFilter(this);
    auto *caption = new QLabel(tr("Zoom"), m_toolBar); // a list says its choice in place of a name
    caption->setBuddy(m_zoom);
    caption->hide();
    m_toolBar->addWidget(m_zoom);
    addTool(QStringLiteral("zoomIn"), QStringLiteral("+"), tr("Zoom in"), QKeySequence::ZoomIn,
            [this] { m_view->setZoom(m_view->zoom() * ZoomStep); });
    addKey(QKeySequence(Qt::CTRL | Qt::Key_0), [this] { m_view->setZoom(1); });
    addTool(QStringLiteral("fitWidth"), tr("Fit width"), tr("Fit width"), QKeySequence(Qt::CTRL | Qt::Key_1),
            [this] { m_view->setFit(PageView::Fit::Width); });
    addTool(QStringLiteral("fitPage"), tr("Fit page"), tr("Fit page"), QKeySequence(Qt::CTRL | Qt::Key_2),
            [this] { m_view->setFit(PageView::Fit::Page); });
    m_toolBar->addSeparator();
}

void Viewer::createFindTools() {
    m_find = new QLineEdit(m_toolBar);
    m_find->setObjectName(QStringLiteral("find"));
    m_find->setAccessibleName(tr("Find"));
    m_find->setPlaceholderText(tr("Find (Ctrl+F)"));
    m_find->setClearButtonEnabled(true);
    m_find->installEventFilter(this);
    connect(m_find, &QLineEdit::textChanged, this, &Viewer::search);
    addKey(QKeySequence::Find, [this] {
        m_find->setFocus();
        m_find->selectAll();
    });
    m_toolBar->addWidget(m_find);
    addTool(QStringLiteral("findPrevious"), tr("Previous match"), tr("Previous match"),
            QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { goToMatch(-1); })
        ->setIcon(arrowIcon(Arrow::Up));
    addTool(QStringLiteral("findNext"), tr("Next match"), tr("Next match"), QKeySequence(Qt::Key_F3), [this] {
        goToMatch(1);
    })->setIcon(arrowIcon(Arrow::Down));
    m_found = new QLabel(m_toolBar);
    m_found->setObjectName(QStringLiteral("found"));
    m_found->setMinimumWidth(fontMetrics().horizontalAdvance(tr("Not found")) + FoundMargin);
    m_toolBar->addWidget(m_found);
}

void Viewer::setSaveHandler(std::function<void()> handler) {
    m_save = std::move(handler);
    findChild<QAction *>(QStringLiteral("save"))->setVisible(bool(m_save));
}

void Viewer::setPrinterChooser(std::function<bool(QPrinter &)> chooser) {
    m_choosePrinter = std::move(chooser);
}

void Viewer::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(m_document.title);
    printer.setPageSize(paperSize(m_document.pageSettings));
    if (!m_choosePrinter(printer)) return;
    try {
        const BusyPointer busy;
        printDocument(m_document, printer);
    } catch (const RuntimeError &error) {
        MsgBox(error.description(), vbExclamation, windowTitle());
    }
}

void Viewer::search(const QString &text) {
    m_matches = findText(m_document, text);
    m_view->setMatches(m_matches);
    m_match = -1;
    m_found->clear();
    if (!text.isEmpty()) goToMatch(1);
}

// From the last match to the first and back.
void Viewer::goToMatch(int step) {
    const int count = int(m_matches.size());
    if (count == 0) {
        m_found->setText(m_find->text().isEmpty() ? QString() : tr("Not found"));
        return;
    }
    m_match = m_match < 0 ? (step > 0 ? 0 : count - 1) : (m_match + step + count) % count;
    m_view->setCurrentMatch(m_match);
    m_found->setText(tr("%1 of %2").arg(m_match + 1).arg(count));
}

void Viewer::showZoom() {
    m_zoom->setEditText(QStringLiteral("%1 %").arg(qRound(m_view->zoom() * 100)));
}

void Viewer::showPage(int page) {
    const QSignalBlocker blocker(m_page);
    m_page->setValue(page + 1);
}

void Viewer::zoomToText() {
    QString digits = m_zoom->currentText();
    const int percent = digits.remove(QLatin1Char('%')).trimmed().toInt();
    if (percent > 0) m_view->setZoom(percent / 100.0);
    showZoom();
    m_view->setFocus();
}

// Enter and Escape in a box are the box's, not the dialog's.
bool Viewer::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (key->key() == Qt::Key_Escape) {
            showZoom();
            m_view->setFocus();
            return true;
        }
        if (isEnter && watched == m_find) {
            goToMatch(key->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
            return true;
        }
        if (isEnter && watched == m_page) {
            m_page->interpretText();
            m_view->setFocus();
            return true;
        }
        if (isEnter) {
            zoomToText();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace Printing
