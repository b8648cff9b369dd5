#pragma once

#include "project/projectwriter.h"

#include <QThread>

// Worker that runs the project writer on its own copy of the job and reports the result.
class GenerateProjectThread : public QThread
{
    Q_OBJECT

public:
    explicit GenerateProjectThread(const ProjectJob &job, QObject *parent = nullptr);

    // ProjectWriter::Result of the last run, -1 before one has finished.
    int result() const { return m_result; }
    // The reason of a failed run.
    QString errorText() const { return m_error; }

signals:
    void emitResult(int nResult);

protected:
    void run() override;

private:
    const ProjectJob m_job;
    int m_result = -1;
    QString m_error;
};
