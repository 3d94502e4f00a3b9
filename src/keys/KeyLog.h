#pragma once

#include <QLoggingCategory>

/// The key page, the on-screen keyboard and the pickers.
Q_DECLARE_LOGGING_CATEGORY(lcKeys)
