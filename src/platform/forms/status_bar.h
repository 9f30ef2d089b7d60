// The line of panels at the bottom of the main window.
#pragma once

#include <vector>

#include <QStatusBar>

class QLabel;
class QTimer;

enum StatusPanelStyle { sbrText = 0, sbrTime = 5, sbrDate = 6 };

/// Panels are counted from 1. The text panels share what width the others leave; a text that is too long is
/// cut with three dots and stands whole in the panel's tool tip.
class StatusBar : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusBar(const QString &name, QWidget *parent = nullptr);

    /// Returns the panel's number. Date and time follow the clock, in the regional form.
    int AddPanel(StatusPanelStyle style);
    int Count() const { return static_cast<int>(m_panels.size()); }
    /// Raise 35600 for an index outside 1 to Count.
    QString PanelText(int index) const;
    void setPanelText(int index, const QString &text);

    /// Where a work shows its progress. Raises 35600.
    QWidget &PanelPlace(int index) const;

    bool Visible() const { return !isHidden(); }

Q_SIGNALS:
    void PanelDblClick(int index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Panel {
        StatusPanelStyle style;
        QLabel *label;
        QString text;
    };
    const Panel &at(int index) const;
    void showText(Panel &panel, const QString &text);
    void fit(const Panel &panel);
    void followClock();

    std::vector<Panel> m_panels;
    QTimer *m_clock;
};
