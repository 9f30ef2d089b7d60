// The headings of a grid: texts of several lines, or a picture.
#pragma once

#include <QHeaderView>

class GridModel;

/// As tall as the tallest heading in its column's width.
class GridHeader : public QHeaderView {
    Q_OBJECT
public:
    GridHeader(const GridModel &model, QWidget *parent);

    QSize sizeHint() const override;
    /// A heading, or the width it has to fit in, is another one now.
    void headingsChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int index) const override;
    QSize sectionSizeFromContents(int index) const override;

private:
    void paintPicture(QPainter *painter, const QRect &rect, int index, const QColor &colour) const;
    QSize headingSize(int index, int width) const;
    QString text(int index) const;

    const GridModel &m_model;
};
