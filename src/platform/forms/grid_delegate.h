// Paints a grid's cells: row colours, the mark of the current row, wrapped text, and a mark for text cut off.
#pragma once

#include <QStyledItemDelegate>

#include "platform/forms/fitted_text.h"
#include "platform/forms/grid_look.h"

class GridModel;
class GridView;

class GridDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    GridDelegate(const GridModel &model, const GridLook &look, GridView *view);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// The cell shows less than its text, or is out of sight in part.
    bool isCut(const QModelIndex &index) const;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    FittedText fit(QStyleOptionViewItem &option) const;
    void paintFocus(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    QColor background(const QModelIndex &index, const QPalette &palette) const;

    const GridModel &m_model;
    const GridLook &m_look;
    const GridView *m_view;
};
