// What a window and the main window have in common: a name, a place in twips, and a life in events.
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

enum FormWindowState { vbNormal = 0, vbMinimized = 1, vbMaximized = 2 };

/// Who asks a form to unload.
enum UnloadMode { vbFormControlMenu = 0, vbFormCode = 1, vbAppWindows = 2, vbFormMDIForm = 4 };

enum MousePointerShape { vbDefault = 0, vbHourglass = 11 };

/// The life of a form: constructed, loaded (once, before its first showing, and in the forms collection from
/// then on), shown and hidden, unloaded. An unloaded form is deleted when control is back in the event loop,
/// so that a form may unload itself in one of its own handlers; forms therefore live on the heap.
///
/// An event procedure is where a run-time error ends: the application object reports it there.
///
/// Places and sizes are twips of the outer frame. A child window's frame is part of it and counts exactly;
/// the frame that a desktop puts around a top-level window differs from desktop to desktop, and a nominal one
/// of the same size as a child's counts in its stead.
class FormBase {
public:
    virtual ~FormBase();

    virtual QWidget *asWidget() = 0;
    const QWidget *asWidget() const { return const_cast<FormBase *>(this)->asWidget(); }
    /// The form as its own class, null where it is another.
    template <class F>
    F *as() {
        return dynamic_cast<F *>(this);
    }

    /// The class name of the window, the same for all its instances.
    QString Name() const { return asWidget()->objectName(); }
    QString Caption() const { return asWidget()->windowTitle(); }
    void setCaption(const QString &caption) { asWidget()->setWindowTitle(caption); }

    int Left() const;
    int Top() const;
    int Width() const;
    int Height() const;
    /// A form that is minimised or maximised keeps its place and size.
    void setLeft(int twips);
    void setTop(int twips);
    void setWidth(int twips);
    void setHeight(int twips);
    void Move(int left, int top, int width, int height);
    /// The area inside the frame.
    int ScaleWidth() const;
    int ScaleHeight() const;
    void setScaleSize(int width, int height);

    FormWindowState WindowState() const;
    void setWindowState(FormWindowState state);
    /// Shown, though it may lie behind others or be minimised.
    bool Visible() const;

    /// The hourglass shows over all windows but a modal one until the form that set it takes it back.
    void setMousePointer(int shape);

    /// The first touch: enters the forms collection and runs Form_Load. A second call does nothing.
    void Load();
    /// Loads if need be and shows the form modeless.
    void Show();
    void Hide();
    /// Brings a visible form to the front and makes it the active one.
    void SetFocus();
    /// Runs Form_QueryUnload and Form_Unload, and unless one of them cancels, takes the form out of the
    /// collection and off the screen. True when the form is gone; a second call during the first is harmless.
    bool Unload(UnloadMode mode = vbFormCode);
    /// The same for one of many, none of whose procedures is running: what it takes is free on return, and
    /// not only when the event loop is reached.
    bool UnloadAtOnce();

    bool isLoaded() const { return m_phase == Phase::Loading || m_phase == Phase::Loaded; }
    bool isUnloaded() const { return m_phase == Phase::Unloaded; }

protected:
    /// What happens to a form, in the order Load, Resize (on the first showing and on every change of size or
    /// window state), Activate (on becoming the active form), QueryUnload, Unload.
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Resize() {}
    virtual void Form_QueryUnload(bool & /*cancel*/, UnloadMode /*mode*/) {}
    virtual void Form_Unload(bool & /*cancel*/) {}

    /// The outermost widget of the form: itself, or the child frame around it.
    virtual QWidget *frame() = 0;
    const QWidget *frame() const { return const_cast<FormBase *>(this)->frame(); }
    /// What of the outer size is not in the frame widget's own size.
    virtual QSize nominalFrame() const = 0;
    virtual void showFrame() = 0;
    virtual void focusFrame() = 0;
    /// False where a dependent form refuses.
    virtual bool queryDependents() { return true; }
    /// False where one of them stays after all.
    virtual bool unloadDependents() { return true; }
    virtual void leaveScreen();

    /// Called by the windows' own event handlers.
    void sizeChanged();
    void shown();
    void becomeActive();
    /// Of a window of its own, when the desktop has put its frame around it: the first time only, since from
    /// then on its place is the user's.
    void activatedByDesktop();

private:
    friend class Forms;
    friend class Form;
    friend class MDIForm;
    friend class ChildFrame;
    enum class Phase { New, Loading, Loaded, Unloading, Unloaded };

    bool queryUnload(UnloadMode mode);
    bool finishUnload();
    void setPixelSize(const QSize &size);

    Phase m_phase = Phase::New;
    int m_mousePointer = vbDefault;
    bool m_everShown = false;
    bool m_fitted = false;
    bool m_resizePending = false;
};
