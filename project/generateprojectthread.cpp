#include "project/generateprojectthread.h"

GenerateProjectThread::GenerateProjectThread(const ProjectJob &job, QObject *parent)
    : QThread(parent), m_job(job)
{
}

void GenerateProjectThread::run()
{
    QString error;
    const int result = ProjectWriter::write(m_job, &error);
    m_error = error;
    m_result = result;
    emit emitResult(result);
}
