#pragma once

#include <QWidget>

#include <functional>

// Keeps a widget's table in step with its model without rebuilding it for every change: a
// change marks it stale, a visible widget rebuilds after the current event (so a control that
// reported the change is never replaced while it still reports it), a hidden one when shown.
class LazyRebuild
{
public:
    LazyRebuild(QWidget *owner, std::function<void()> rebuild);

    // Stale; rebuilt after the current event when the owner is visible.
    void changed();
    // Stale; rebuilt at once when the owner is visible.
    void changedNow();
    // Rebuilds when stale (call from the owner's showEvent).
    void ensureCurrent();
    // The owner's rebuild calls this when it has run.
    void rebuilt() { m_stale = false; }

private:
    QWidget *m_owner;
    std::function<void()> m_rebuild;
    bool m_stale = true;
    bool m_queued = false;
};
