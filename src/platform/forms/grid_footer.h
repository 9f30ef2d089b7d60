// The cells under a grid's rows: empty, but they can be clicked.
#pragma once

#include <QWidget>

class QHeaderView;

/// Stands under the view that the headings belong to, as wide as it, and follows the headings' columns.
class GridFooter : public QWidget {
    Q_OBJECT
public:
    GridFooter(const QHeaderView *headings, QWidget *parent);

    QSize sizeHint() const override;
    /// -1 beside the columns.
    int columnAt(int x) const;
    QRect columnRect(int column) const;

Q_SIGNALS:
    void clicked(int column);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void setHovered(int column);

    const QHeaderView *m_headings;
    int m_hovered = -1;
    int m_pressed = -1;
};
