#include "ConsoleCodePage.h"

namespace platform {

void useUtf8Console() {}

} // namespace platform
