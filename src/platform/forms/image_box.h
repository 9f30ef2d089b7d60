// A picture that fills its place and can be clicked.
#pragma once

#include <QIcon>
#include <QWidget>

/// Keeps the picture's proportions. The picture is told by its file or resource name, so that two boxes can
/// be asked whether they show the same one.
class ImageBox : public QWidget {
    Q_OBJECT

public:
    explicit ImageBox(QWidget *parent = nullptr);

    QString Picture() const { return m_picture; }
    /// Empty shows nothing. Raises 53 where there is no such picture.
    void setPicture(const QString &picture);

Q_SIGNALS:
    void Click();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QString m_picture;
    QIcon m_icon;
};
