// Somebody who knows nothing of the program and uses all of it.
#pragma once

#include <functional>
#include <random>

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include "tests/support/test_run.h"

class QWidget;

/// Keys, typed and pasted texts, clicks, menu choices, temperatures, windows moved about, and answers to
/// boxes, all by a seed. Every action is noted in the testRun before it is done, as "do: ...".
class RandomUser : public QObject {
public:
    /// Files are saved in `folder`.
    RandomUser(TestRun &testRun, unsigned seed, const QString &folder);

    /// So many actions, or until the program has gone.
    void work(int actions);

private:
    using Random = std::mt19937;

    static int below(int limit, Random &random) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    }
    int below(int limit) { return below(limit, m_random); }
    template <typename Item>
    static const Item &oneOf(const QList<Item> &items, Random &random) {
        return items[below(static_cast<int>(items.size()), random)];
    }
    template <typename Item>
    const Item &oneOf(const QList<Item> &items) {
        return oneOf(items, m_random);
    }

    bool isRunning() const;
    /// What a person could reach now: an open menu, a modal window, the help, or the program's main window.
    QWidget *scope() const;
    static QWidget *helpWindow();
    void act();
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
    Random m_random;
    Random m_watch; // of its own: how often the watch looks up depends on the clock
    QString m_folder;
    bool m_readsHelp = false;
    int m_depth = 0; // modal windows above one another
};
