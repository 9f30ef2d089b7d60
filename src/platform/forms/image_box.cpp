#include "platform/forms/image_box.h"

#include <QFileInfo>
#include <QMouseEvent>
#include <QPainter>

#include "platform/runtime/runtime_error.h"

ImageBox::ImageBox(QWidget *parent)
    : QWidget(parent) {}

void ImageBox::setPicture(const QString &picture) {
    if (picture == m_picture) return;
    if (!picture.isEmpty() && !QFileInfo::exists(picture)) throw RuntimeError::ofFile(53, picture);
    m_picture = picture;
    m_icon = QIcon(picture);
    update();
}

void ImageBox::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    m_icon.paint(&painter, rect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

void ImageBox::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Q_EMIT Click();
}
