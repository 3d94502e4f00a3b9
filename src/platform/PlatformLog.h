#pragma once

#include <QLoggingCategory>

/// What the operating system was asked and did not do.
Q_DECLARE_LOGGING_CATEGORY(lcPlatform)
