#include "cli/Progress.h"

#include "cli/StatusLine.h"
#include "cli/Terminal.h"

#include <algorithm>

Progress::Progress(QObject *parent)
    : QObject(parent) {
    using namespace std::chrono_literals;
    m_redraw.setInterval(200ms);
    connect(&m_redraw, &QTimer::timeout, this, &Progress::draw);
}

Progress::~Progress() {
    end();
}

void Progress::begin(qsizetype total) {
    if (!terminal::onStandardError())
        return;
    m_now.total = total;
    m_clock.start();
    m_redraw.start();
}

void Progress::startFile(qsizetype number, const QString &path) {
    m_now.file = number;
    m_now.path = path;
}

void Progress::setStage(const QString &stage, double fraction) {
    m_now.stage = stage;
    m_now.fraction = fraction;
}

void Progress::end() {
    if (!m_redraw.isActive())
        return;
    m_redraw.stop();
    StatusLine::erase();
}

void Progress::draw() {
    if (m_now.file == 0)
        return;
    const double done = double(m_now.file - 1) + std::clamp(m_now.fraction, 0.0, 1.0);
    m_now.secondsLeft = estimateSecondsLeft(double(m_clock.elapsed()) / 1000, done, double(m_now.total));
    // The last cell stays free: some terminals break the line when it is filled.
    const QString text = progressText(m_now, terminal::columns() - 1);
    StatusLine::show(text, columnsOf(text));
}
