// The window that shows a document.
#pragma once

#include <functional>

#include <QDialog>

#include "platform/printing/document.h"
#include "platform/printing/document_search.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QPrinter;
class QSpinBox;
class QToolBar;

namespace Printing {

class PageView;

/// Show it with exec(). Keys: Ctrl+P print, Ctrl+S save, Ctrl+F find, F3 and Shift+F3 next and previous
/// match, Ctrl+Plus, Ctrl+Minus and Ctrl+0 zoom, Ctrl+1 fit width, Ctrl+2 fit page, Ctrl+Page Down and Up
/// page by page, Ctrl+Home and Ctrl+End first and last page, Ctrl+G page number, arrows, Page Up/Down, Home
/// and End scroll, Escape leaves the find box and then the window.
class Viewer : public QDialog {
    Q_OBJECT
public:
    explicit Viewer(const Document &document, QWidget *parent = nullptr);
    ~Viewer() override;

    /// Called by Save; without one there is no such button.
    void setSaveHandler(std::function<void()> handler);
    /// Stands in for the print dialog: sets up the printer and tells whether to print.
    void setPrinterChooser(std::function<bool(QPrinter &)> chooser);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createFileTools();
    void createPageTools();
    void createZoomTools();
    void createFindTools();
    QAction *addTool(const QString &name, const QString &text, const QString &tip, const QKeySequence &key,
                     std::function<void()> act);
    void addKey(const QKeySequence &key, std::function<void()> act);
    void openAtReadableSize();
    void print();
    void search(const QString &text);
    void goToMatch(int step);
    void showZoom();
    void showPage(int page);
    void zoomToText();

    Document m_document;
    PageView *m_view;
    QToolBar *m_toolBar;
    QSpinBox *m_page = nullptr;
    QComboBox *m_zoom = nullptr;
    QLineEdit *m_find = nullptr;
    QLabel *m_found = nullptr;
    std::vector<TextMatch> m_matches;
    int m_match = -1;
    std::function<void()> m_save;
    std::function<bool(QPrinter &)> m_choosePrinter;
};

} // namespace Printing
