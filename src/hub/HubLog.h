#pragma once

#include <QLoggingCategory>

/// Discovery, cards, sibling drivers and languages.
Q_DECLARE_LOGGING_CATEGORY(lcHub)
