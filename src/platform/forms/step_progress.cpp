#include "platform/forms/step_progress.h"

#include <algorithm>

#include <QProgressBar>

namespace {
constexpr int BarWidth = 180;
}

StepProgress::StepProgress(QWidget &place, int steps)
    : m_bar(std::make_unique<QProgressBar>(&place)) {
    m_bar->setObjectName(QStringLiteral("StepProgress"));
    m_bar->setRange(0, steps);
    m_bar->setValue(0);
    m_bar->setFormat(QStringLiteral("%v / %m"));
    const QRect room = place.rect();
    const int width = std::min(BarWidth, room.width());
    m_bar->setGeometry(room.right() + 1 - width, room.top(), width, room.height());
    m_bar->show();
    m_bar->repaint();
}

StepProgress::~StepProgress() = default;

void StepProgress::step() {
    m_bar->setValue(m_bar->value() + 1);
    m_bar->repaint();
}
