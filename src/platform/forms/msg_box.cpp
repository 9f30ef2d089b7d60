#include "platform/forms/msg_box.h"

#include <vector>

#include <QMessageBox>
#include <QPushButton>

#include "platform/forms/modal_seam.h"
#include "platform/forms/modality.h"
#include "platform/forms/pointer_pause.h"
#include "platform/runtime/app.h"

namespace {

struct Button {
    QMessageBox::StandardButton button;
    MsgBoxResult result;
};

std::vector<Button> buttonsOf(int style) {
    const Button ok{QMessageBox::Ok, vbOK}, cancel{QMessageBox::Cancel, vbCancel},
        yes{QMessageBox::Yes, vbYes}, no{QMessageBox::No, vbNo}, retry{QMessageBox::Retry, vbRetry},
        abort{QMessageBox::Abort, vbAbort}, ignore{QMessageBox::Ignore, vbIgnore};
    switch (style & 0xF) {
    case vbOKCancel:
        return {ok, cancel};
    case vbAbortRetryIgnore:
        return {abort, retry, ignore};
    case vbYesNoCancel:
        return {yes, no, cancel};
    case vbYesNo:
        return {yes, no};
    case vbRetryCancel:
        return {retry, cancel};
    default:
        return {ok};
    }
}

QMessageBox::Icon iconOf(int style) {
    switch (style & 0xF0) {
    case vbCritical:
        return QMessageBox::Critical;
    case vbQuestion:
        return QMessageBox::Question;
    case vbExclamation:
        return QMessageBox::Warning;
    case vbInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

/// Cut off from the box, which would close at it as at any other button.
void addHelpButton(QMessageBox &box, const std::function<void()> &help) {
    QPushButton *button = box.addButton(QMessageBox::Help);
    button->disconnect();
    QObject::connect(button, &QPushButton::clicked, &box, help);
}

} // namespace

int MsgBox(const QString &text, int style, const QString &title, const std::function<void()> &help) {
    const QString heading = title.isEmpty() ? App::current().title : title;
    if (ModalSeam *seam = ModalSeam::active()) {
        ModalSeam::Request request;
        request.kind = ModalSeam::Kind::MessageBox;
        request.text = text;
        request.style = style;
        request.title = heading;
        request.help = help;
        return seam->takeMsgBoxAnswer(request);
    }
    QMessageBox box(Modality::front());
    box.setObjectName(QStringLiteral("MsgBox"));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setWindowTitle(heading);
    box.setIcon(iconOf(style));
    const std::vector<Button> buttons = buttonsOf(style);
    for (const Button &button : buttons)
        box.addButton(button.button);
    if (help) addHelpButton(box, help);
    const std::size_t preset = style & vbDefaultButton3 ? 2 : style & vbDefaultButton2 ? 1 : 0;
    if (preset < buttons.size()) box.setDefaultButton(buttons[preset].button);
    const PointerPause pause;
    const int pressed = box.exec();
    for (const Button &button : buttons)
        if (button.button == pressed) return button.result;
    return buttons.back().result;
}
