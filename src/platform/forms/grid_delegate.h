// Paints a grid's cells: row colours, the mark of the current row, wrapped text.
#pragma once

#include <QStyledItemDelegate>

#include "platform/forms/grid_look.h"

class GridModel;
class GridView;

class GridDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    GridDelegate(const GridModel &model, const GridLook &look, GridView *view);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    QColor background(const QModelIndex &index, const QPalette &palette) const;

    const GridModel &m_model;
    const GridLook &m_look;
    const GridView *m_view;
};
