#include "peripherals/lazyrebuild.h"

#include <QTimer>

LazyRebuild::LazyRebuild(QWidget *owner, std::function<void()> rebuild)
    : m_owner(owner), m_rebuild(std::move(rebuild))
{
}

void LazyRebuild::changed()
{
    m_stale = true;
    if (m_owner->isVisible() && !m_queued) {
        m_queued = true;
        QTimer::singleShot(0, m_owner, [this] {
            m_queued = false;
            ensureCurrent();
        });
    }
}

void LazyRebuild::changedNow()
{
    m_stale = true;
    if (m_owner->isVisible())
        m_rebuild();
}

void LazyRebuild::ensureCurrent()
{
    if (m_stale)
        m_rebuild();
}
