#pragma once

#include <QLoggingCategory>

/// The macros, their files and their editor.
Q_DECLARE_LOGGING_CATEGORY(lcMacros)
