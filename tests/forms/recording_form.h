// A form that writes down what happens to it.
#pragma once

#include <functional>

#include <QStringList>

#include "platform/forms/form.h"
#include "platform/forms/mdi_form.h"

inline QStringList formLog;

class RecordingForm : public Form {
    Q_OBJECT
    Q_PROPERTY(int iReportType MEMBER iReportType)

public:
    explicit RecordingForm(const QString &name = QStringLiteral("frmOne"), Kind kind = Kind::Window)
        : Form(name, kind) {
        setCaption(name);
    }

    Q_INVOKABLE QString ShowTable(const QString &key) {
        formLog.append(Caption() + QLatin1String(".ShowTable ") + key);
        return key.toUpper();
    }
    Q_INVOKABLE int twice(qint16 number) { return 2 * number; }

    int iReportType = 0;
    std::function<void()> onLoad, onActivate, onResize, onUnload;
    std::function<bool(UnloadMode)> refuses;

protected:
    void Form_Load() override { note("Load", onLoad); }
    void Form_Activate() override { note("Activate", onActivate); }
    void Form_Resize() override { note("Resize", onResize); }
    void Form_QueryUnload(bool &cancel, UnloadMode mode) override {
        formLog.append(QStringLiteral("%1.QueryUnload %2").arg(Caption()).arg(mode));
        cancel = refuses && refuses(mode);
    }
    void Form_Unload(bool &) override { note("Unload", onUnload); }

private:
    void note(const char *event, const std::function<void()> &then) {
        formLog.append(QStringLiteral("%1.%2").arg(Caption(), QLatin1String(event)));
        if (then) then();
    }
};

class RecordingMain : public MDIForm {
public:
    RecordingMain()
        : MDIForm(QStringLiteral("mdiMain")) {
        setCaption(QStringLiteral("main"));
        resize(900, 700);
    }

protected:
    void Form_Load() override { formLog.append(QStringLiteral("main.Load")); }
    void Form_QueryUnload(bool &, UnloadMode mode) override {
        formLog.append(QStringLiteral("main.QueryUnload %1").arg(mode));
    }
    void Form_Unload(bool &) override { formLog.append(QStringLiteral("main.Unload")); }
};

inline RecordingForm *newChild(const QString &caption) {
    auto *child = new RecordingForm(QStringLiteral("frmChild"), Form::Kind::MdiChild);
    child->setCaption(caption);
    return child;
}
