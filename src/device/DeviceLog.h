#pragma once

#include <QLoggingCategory>

/// The connection, its handles and its files.
Q_DECLARE_LOGGING_CATEGORY(lcDevice)
/// What the machine plays.
Q_DECLARE_LOGGING_CATEGORY(lcAudio)
