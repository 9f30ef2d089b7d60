// The headings of a grid: texts of several lines, or a picture.
#pragma once

#include <vector>

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
    void changeEvent(QEvent *event) override;

private:
    /// A text as it was last measured.
    struct Measured {
        QString text;
        int width = -1;
        QSize size;
    };

    void paintPicture(QPainter *painter, const QRect &rect, int index, const QColor &colour) const;
    QSize headingSize(int index, int width) const;
    QString text(int index) const;

    const GridModel &m_model;
    // By column. The header is asked for its size at every change of every column, and the texts stay.
    mutable std::vector<Measured> m_measured;
};
