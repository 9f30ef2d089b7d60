// The rows of a grid: keys, selection, copying, cell drag, and rows as tall as their text.
#pragma once

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
    /// The selected cells as lines of tab-separated texts; a text with a tab or a line end is quoted.
    QString selectedText() const;
    void copySelection() const;

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
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void verticalScrollbarValueChanged(int value) override;

private:
    void startCellDrag();
    bool anyColumnWraps() const;
    void fitVisibleRows();
    int neededHeight(int row) const;
    void forgetRowHeights();

    GridModel &m_model;
    QWidget *m_dragSource = nullptr;
    QPersistentModelIndex m_pressed;
    QPoint m_pressedAt;
    std::vector<bool> m_fitted;
    bool m_rowsGrow = false;
    bool m_heightsStale = false;
};
