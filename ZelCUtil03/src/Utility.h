#pragma once

#include "Log.h"
#include "LogPlan.h"
#include "Settings.h"

namespace zelcutil {

/** Settings and log of the process. */
class Utility
{
public:
    /** Built at the first call by whichever thread comes first, and never destroyed. */
    static Utility &instance();

    const Settings &settings() const { return m_settings; }
    Log &log() { return m_log; }

private:
    Utility();

    // In this order: each is made from the one above.
    Settings m_settings;
    LogPlan m_plan;
    Log m_log;
};

} // namespace zelcutil
