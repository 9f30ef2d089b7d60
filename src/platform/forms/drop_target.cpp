#include "platform/forms/drop_target.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

namespace {
const QString SourceNameFormat = QStringLiteral("application/x-control-name");
}

DropTarget::DropTarget(QWidget *widget)
    : QObject(widget) {
    widget->setAcceptDrops(true);
    widget->installEventFilter(this);
}

bool DropTarget::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop: {
        auto *drop = static_cast<QDropEvent *>(event);
        if (!drop->mimeData()->hasFormat(SourceNameFormat)) return QObject::eventFilter(watched, event);
        drop->acceptProposedAction();
        if (event->type() == QEvent::Drop)
            Q_EMIT Dropped(QString::fromUtf8(drop->mimeData()->data(SourceNameFormat)));
        return true;
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}

void dragControl(QWidget *source, const QPixmap &picture) {
    auto *data = new QMimeData;
    data->setData(SourceNameFormat, source->objectName().toUtf8());
    auto *drag = new QDrag(source);
    drag->setMimeData(data);
    drag->setPixmap(picture);
    drag->exec(Qt::CopyAction);
}
