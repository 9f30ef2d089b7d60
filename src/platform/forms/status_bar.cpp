#include "platform/forms/status_bar.h"

#include <QDateTime>
#include <QEvent>
#include <QLabel>
#include <QLocale>
#include <QRegularExpression>
#include <QTimer>

#include "platform/forms/announcement.h"
#include "platform/forms/placement.h"
#include "platform/runtime/regional_settings.h"
#include "platform/runtime/runtime_error.h"

namespace {
constexpr int TextIndent = 2;
}

StatusBar::StatusBar(const QString &name, QWidget *parent)
    : QStatusBar(parent)
    , m_clock(new QTimer(this)) {
    setObjectName(name);
    m_clock->setInterval(1000);
    connect(m_clock, &QTimer::timeout, this, &StatusBar::followClock);
}

int StatusBar::AddPanel(StatusPanelStyle style) {
    auto *label = new QLabel(this);
    label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    label->setMargin(1);
    label->setIndent(TextIndent); // else the label makes up one, and a text fitted to its width is cut
    label->installEventFilter(this);
    m_panels.push_back({style, label, {}});
    named(label, QStringLiteral("%1(%2)").arg(objectName()).arg(Count()));
    if (style == sbrText) label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    // Permanent, since a status tip would cover any other.
    addPermanentWidget(label, style == sbrText ? 1 : 0);
    if (style != sbrText) {
        followClock();
        m_clock->start();
    }
    return Count();
}

const StatusBar::Panel &StatusBar::at(int index) const {
    if (index < 1 || index > Count()) throw RuntimeError(35600, QStringLiteral("Index out of bounds"));
    return m_panels[static_cast<std::size_t>(index - 1)];
}

QString StatusBar::PanelText(int index) const {
    return at(index).text;
}

QWidget &StatusBar::PanelPlace(int index) const {
    return *at(index).label;
}

void StatusBar::setPanelText(int index, const QString &text) {
    at(index);
    showText(m_panels[static_cast<std::size_t>(index - 1)], text);
}

void StatusBar::showText(Panel &panel, const QString &text) {
    if (panel.text == text) return;
    panel.text = text;
    panel.label->setAccessibleName(text);
    if (panel.style == sbrText) announce(*this, text);
    fit(panel);
}

void StatusBar::fit(const Panel &panel) {
    if (panel.style != sbrText) {
        panel.label->setText(panel.text);
        return;
    }
    const int width = panel.label->contentsRect().width() - 2 * panel.label->margin() - TextIndent;
    const QString shown = panel.label->fontMetrics().elidedText(panel.text, Qt::ElideRight, width);
    panel.label->setText(shown);
    panel.label->setToolTip(shown == panel.text ? QString() : panel.text);
}

void StatusBar::followClock() {
    const QDateTime now = QDateTime::currentDateTime();
    const RegionalSettings &settings = RegionalSettings::current();
    static const QRegularExpression seconds(QStringLiteral("[:.]ss"));
    for (Panel &panel : m_panels) {
        if (panel.style == sbrDate) showText(panel, now.toString(settings.shortDateFormat));
        if (panel.style == sbrTime)
            showText(panel, now.toString(QString(settings.timeFormat).remove(seconds)));
    }
}

bool StatusBar::eventFilter(QObject *watched, QEvent *event) {
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        if (m_panels[i].label != watched) continue;
        if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) fit(m_panels[i]);
        if (event->type() == QEvent::MouseButtonDblClick) Q_EMIT PanelDblClick(static_cast<int>(i) + 1);
    }
    return QStatusBar::eventFilter(watched, event);
}
