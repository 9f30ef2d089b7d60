// The hand and the camera of the tour: real windows, real keys, numbered pictures.
#pragma once

#include <functional>

#include <QString>
#include <QTemporaryDir>
#include <QWidget>

#include "platform/forms/form_base.h"
#include "platform/forms/modal_seam.h"

/// Works on controls by their names, as a person finds them by their labels. A control that is not there ends
/// the tour with a message.
class Tour {
public:
    /// Pictures and saved files go into `folder`, which is made anew.
    explicit Tour(const QString &folder);

    QString folder() const { return m_folder; }
    /// Every box that the program opens on its own is answered from here.
    ModalSeam &boxes() { return m_boxes; }
    /// The pages of a saved file as pictures beside it, where the tool for that is installed.
    static void pagePictures(const QString &pdf);

    /// A picture of the main window, or of another one, under the next number.
    void picture(const QString &name);
    void picture(const QString &name, QWidget &window);
    /// The windows in their places on the screen, with its panels.
    void screenPicture(const QString &name, const QList<QWidget *> &windows);

    QWidget &main() const;
    /// The loaded form of that name; `index` counts several from 0.
    FormBase &form(const QString &name, int index = 0) const;
    /// The window of the first grade whose caption holds the text, brought to the front; the first one of all
    /// where none does.
    FormBase &windowOf(const QString &grade);
    template <class W>
    W &control(FormBase &form, const QString &name) const {
        return *static_cast<W *>(find(*form.asWidget(), name, &W::staticMetaObject));
    }

    void type(QWidget &box, const QString &text);
    /// Empties the box by keys, then types.
    void retype(QWidget &box, const QString &text);
    void press(QWidget &widget, Qt::Key key);
    void click(QWidget &widget);
    /// A button of the form by its name.
    void click(FormBase &form, const QString &button);
    void menu(const QString &entry);
    /// Exit, as a person does it who starts the program once more.
    void leave();
    void settle();

private:
    QString nextFile(const QString &name);
    QWidget *find(QWidget &parent, const QString &name, const QMetaObject *type) const;

    QString m_folder;
    int m_number = 0;
    ModalSeam m_boxes;
    QTemporaryDir m_user;
};

// The stations, in the order in which a person meets them.
void startProgram(Tour &tour);
void searchAndSelect(Tour &tour);
void showPmaIndex(Tour &tour);
void readMaterials(Tour &tour);
void showTablesAndGraphs(Tour &tour);
void designValues(Tour &tour);
void compareGrades(Tour &tour);
void valuesOverTemperature(Tour &tour);
void printAndSave(Tour &tour);
void showAbout(Tour &tour);
void readHelp(Tour &tour);
void findByValue(Tour &tour);
void makeCards(Tour &tour);
void makeCardOfNothing(Tour &tour);
void useSmallScreens(Tour &tour);
void useAScreenWithPanels(Tour &tour);
void walkTheExample(Tour &tour);
