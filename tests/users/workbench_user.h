// Somebody who knows the windows of the tools, and uses them at random.
#pragma once

#include <functional>

#include <QObject>
#include <QString>

#include "tests/users/chance.h"

class Form;
class QLineEdit;
class QWidget;

class WorkbenchUser {
public:
    using Note = std::function<void(const QString &action)>;

    /// `chance` outlives the object.
    WorkbenchUser(Chance &chance, Note note)
        : m_chance(chance)
        , m_note(std::move(note)) {}

    static bool knows(const QWidget &window);
    /// Brings one of those forward that are open; null without one.
    QWidget *bringForward();
    void open();
    void act(QWidget &window);
    bool isTyping() const { return m_typing; }

private:
    /// Sound ones for the box, mostly.
    QString anyText(const QString &box);
    void type(QWidget &window);
    void choose(QWidget &window);
    void press(QWidget &window);
    void turnPage(QWidget &window);
    /// In the columns of a sheet, or among the dots of the diagram.
    void moveAbout(QWidget &window);
    void changeFrame(QWidget &window);
    void changeSelection(QWidget &window);
    /// A reading that is under way is stopped, or its window closed.
    void disturbReading(QWidget &window);

    template <class Widget>
    Widget *any(QWidget &window);
    void note(const QString &action, const QWidget &widget);

    Chance &m_chance;
    Note m_note;
    bool m_typing = false;
};
