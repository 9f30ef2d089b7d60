// One column of a grid: heading, field, width, look.
#pragma once

#include <functional>
#include <memory>

#include <QString>
#include <Qt>

class QSvgRenderer;

/// Where a heading's picture stands to its text.
enum class HeadPicturePosition { PictureOnly = 6, TextOnly = 7 };

/// Every setting shows at once; a field shows its values.
class GridColumn {
public:
    /// `changed` is called with this column after every change.
    explicit GridColumn(std::function<void(const GridColumn &)> changed);

    /// The heading; CR LF or LF parts its lines.
    const QString &Caption() const { return m_caption; }
    void setCaption(const QString &caption);

    /// The field shown by a bound grid. A field that the recordset lacks shows empty cells.
    const QString &DataField() const { return m_dataField; }
    void setDataField(const QString &field);

    /// In twips.
    double Width() const { return m_width; }
    void setWidth(double twips);

    bool Visible() const { return m_visible; }
    void setVisible(bool visible);

    /// Left, right or centred; cells stand in the middle of their row.
    Qt::Alignment Alignment() const { return m_alignment; }
    void setAlignment(Qt::Alignment alignment);
    Qt::Alignment HeadAlignment() const { return m_headAlignment; }
    void setHeadAlignment(Qt::Alignment alignment);

    /// Long texts go on in a further line; the row grows with them.
    bool WordWrap() const { return m_wordWrap; }
    void setWordWrap(bool wrap);

    /// An SVG file. It is drawn in the colour of the heading's text, to be legible on every theme.
    void setHeadPicture(const QString &svgFile);
    /// TextOnly at first. A picture that cannot be read leaves the text standing.
    void setPicturePosition(HeadPicturePosition position);

    /// The picture to draw in place of the text, or none.
    QSvgRenderer *shownPicture() const;

private:
    template <typename T>
    void set(T &member, const T &value);

    std::function<void(const GridColumn &)> m_changed;
    QString m_caption;
    QString m_dataField;
    double m_width = 1740;
    bool m_visible = true;
    Qt::Alignment m_alignment = Qt::AlignLeft;
    Qt::Alignment m_headAlignment = Qt::AlignLeft;
    bool m_wordWrap = false;
    QString m_headPicture;
    HeadPicturePosition m_picturePosition = HeadPicturePosition::TextOnly;
    std::shared_ptr<QSvgRenderer> m_picture;
};
