#include "ConsoleCodePage.h"

#include <windows.h>

namespace platform {

void useUtf8Console()
{
    SetConsoleOutputCP(CP_UTF8);
}

} // namespace platform
