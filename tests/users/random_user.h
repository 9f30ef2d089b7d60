// Somebody who knows nothing of the program and uses all of it.
#pragma once

#include <functional>

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include "tests/support/test_run.h"
#include "tests/users/workbench_check.h"
#include "tests/users/workbench_user.h"

class QWidget;

/// Keys, typed and pasted texts, clicks, menu choices, temperatures, windows moved about, and answers to
/// boxes, all by a seed. Every action is noted in the testRun before it is done, as "do: ...". What is wrong
/// then in a window of the tools or in a saved file is noted as "broken: ...".
class RandomUser : public QObject {
public:
    /// Files are saved in `folder`.
    RandomUser(TestRun &testRun, unsigned seed, const QString &folder);

    /// So many actions, or until the program has gone.
    void work(int actions);

private:
    int below(int limit) { return m_chance.below(limit); }
    template <typename Item>
    const Item &oneOf(const QList<Item> &items) {
        return m_chance.oneOf(items);
    }

    bool isRunning() const;
    /// What a person could reach now: an open menu, a modal window, a window beside the main one, or this.
    QWidget *scope() const;
    /// The help or a window of the tools, mostly null.
    QWidget *chooseBeside();
    static QWidget *helpWindow();
    void act();
    void actAnywhere();
    /// Ends the run where something is wrong.
    void check();
    [[noreturn]] void breakOff(const QString &fault);
    void note(const QString &action);

    void click();
    void pressKey();
    void pressShortcut();
    void type();
    void typeTemperature();
    void paste();
    void useGrid();
    void dragGrade();
    void chooseFromMenu();
    void useWindowFrame();
    void turnWheel();
    void selectAndShow();
    void emptyBoxes(QWidget &window);

    QString anyText();
    QWidget *anyWidget(const std::function<bool(QWidget &)> &fits);
    template <class Widget>
    Widget *any();

    int answer(const ModalSeam::Request &request);
    QString file();
    void use(Form &window);
    /// Looks after what waits for a person in an event loop of its own: menus, drags, the system's dialogs.
    void keepWatch();

    TestRun &m_testRun;
    Chance m_chance;
    Chance m_watch; // of its own: how often the watch looks up depends on the clock
    QString m_folder;
    WorkbenchUser m_workbench;
    WorkbenchCheck m_check;
    QPointer<QWidget> m_beside;
    int m_depth = 0; // modal windows above one another
};
