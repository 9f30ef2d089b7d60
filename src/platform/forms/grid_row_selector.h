// The narrow cells left of a grid's rows, with an arrow at the current one.
#pragma once

#include <QHeaderView>

class GridRowSelector : public QHeaderView {
    Q_OBJECT
public:
    explicit GridRowSelector(QWidget *parent);

    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int row) const override;

private:
    void fitFont();
};
