// The headings of a grid: texts of several lines that stand beside those of the other columns, or a picture.
#pragma once

#include <vector>

#include <QHeaderView>

#include "platform/forms/fitted_text.h"

class GridModel;

/// As tall as the tallest heading in its column's width.
class GridHeader : public QHeaderView {
    Q_OBJECT
public:
    GridHeader(const GridModel &model, QWidget *parent);

    QSize sizeHint() const override;
    /// A heading, or the width it has to fit in, is another one now.
    void headingsChanged();
    /// The heading shows less than its text, or is out of sight in part, or is a picture made smaller.
    bool isCut(int index) const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int index) const override;
    QSize sectionSizeFromContents(int index) const override;
    void changeEvent(QEvent *event) override;

private:
    /// A heading as it was last measured: its lines, each with the height that its words take in the width.
    struct Measured {
        QString text;
        int width = -1;
        QStringList lines;
        std::vector<int> heights;
    };

    /// One line of a heading where it is painted.
    struct PlacedLine {
        QRect place;
        FittedText text;
    };

    const Measured &measured(int index, int width) const;
    std::vector<int> lineHeights() const;
    std::vector<PlacedLine> placeLines(int index, const QRect &room, const QFont &font) const;
    std::vector<PlacedLine> linesInSight(int index, const QRect &section, const QFont &font) const;
    void paintText(QPainter *painter, const QRect &section, int index) const;
    void paintPicture(QPainter *painter, const QRect &rect, int index, const QColor &colour) const;
    QSize pictureSize(int index, int width) const;
    QString text(int index) const;

    const GridModel &m_model;
    // By column. The header is asked for its size at every change of every column, and the texts stay.
    mutable std::vector<Measured> m_measured;
};
