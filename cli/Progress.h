#pragma once

#include "cli/ProgressText.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Keeps the status line of a terminal up to date during a batch. Does nothing at all unless
/// standard error is a terminal.
class Progress : public QObject {
    Q_OBJECT
public:
    explicit Progress(QObject *parent = nullptr);
    ~Progress() override;

    void begin(qsizetype total);
    void startFile(qsizetype number, const QString &path);
    /// `fraction` of the present file's processing; below 0 when it is unknown.
    void setStage(const QString &stage, double fraction = -1);
    void end();

private:
    void draw();

    BatchProgress m_now;
    QElapsedTimer m_clock;
    QTimer m_redraw;
};
