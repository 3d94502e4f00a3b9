#pragma once

#include <QtGlobal>

namespace platform {

/// The set-1 scan code of a key, with E0 in the high byte for extended keys, from what QKeyEvent calls its
/// native scan code. As Windows tells them, Num-Lock is E045 and Pause 45. 0 for a key that has none.
quint16 keyScanCode(quint32 nativeScanCode);

} // namespace platform
