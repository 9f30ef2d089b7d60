// The rows of a grid: keys, selection, the menu of the cells, cell drag, and rows as tall as their text.
#pragma once

#include <functional>
#include <set>
#include <vector>

#include <QTableView>

class GridModel;

class GridView : public QTableView {
    Q_OBJECT
public:
    GridView(GridModel &model, QWidget *parent);

    /// A mouse drag from a cell drags `source`, by its object name, in place of selecting cells; null ends
    /// that.
    void setDragSource(QWidget *source) { m_dragSource = source; }

    /// Rows are as tall as their text: in an array, and where a column wraps. Else all have one line.
    bool rowsGrow() const { return m_rowsGrow; }
    bool severalCellsSelected() const;
    /// 0 where all are hidden.
    int firstVisibleColumn() const;

    /// Widths, headings or the way columns wrap are other ones now. Rows take their heights before the next
    /// painting, once for all changes up to then, or in fitRows().
    void columnsChanged();
    void fitRows();
    void doItemsLayout() override;
    /// As TDBGrid::setSaver.
    void setSaver(std::function<void()> save);

    enum class CopyHeadings { No, Yes };
    /// The selected cells as lines of tab-separated texts; a text with a tab or a line end is quoted.
    /// Headings are a line of their own above the cells. Caption rows stand above the rows that they belong
    /// to, with the first column, which tells what they caption.
    QString selectedText(CopyHeadings headings = CopyHeadings::No) const;
    void copySelection(CopyHeadings headings) const;

    using QTableView::initViewItemOption;

    /// A search for the typed letters would read every row.
    void keyboardSearch(const QString &) override {}

Q_SIGNALS:
    void enterPressed();
    /// Alt+Up and Alt+Down: the heading and the footer of the current column by keys.
    void headingKeyPressed(int column);
    void footingKeyPressed(int column);
    void currentRowChanged(const QModelIndex &current);
    void rowDoubleClicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void verticalScrollbarValueChanged(int value) override;

private:
    void startCellDrag();
    bool anyColumnWraps() const;
    void fitVisibleRows();
    int neededHeight(int row) const;
    void forgetRowHeights();
    QAction *addCommand(const QString &name, const QString &text, const QKeySequence &keys);
    QString columnHeadings(const std::set<int> &columns) const;
    QString rowText(int row, const std::set<int> &columns, const QItemSelection *selection) const;

    GridModel &m_model;
    QWidget *m_dragSource = nullptr;
    QAction *m_saveCommand = nullptr;
    std::function<void()> m_save;
    QPersistentModelIndex m_pressed;
    QPoint m_pressedAt;
    std::vector<bool> m_fitted;
    bool m_rowsGrow = false;
    bool m_heightsStale = false;
};
