// Drag and drop between controls: what is dragged is known by the name of the control it came from.
#pragma once

#include <QObject>
#include <QPixmap>
#include <QString>

class QWidget;

/// Lets a widget take drops. It belongs to the widget.
class DropTarget : public QObject {
    Q_OBJECT
public:
    explicit DropTarget(QWidget *widget);

Q_SIGNALS:
    /// `sourceName` is the object name of the control that the drag came from.
    void Dropped(const QString &sourceName);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

/// Drags the source's object name, and nothing else, until the mouse button is let go.
void dragControl(QWidget *source, const QPixmap &picture);
