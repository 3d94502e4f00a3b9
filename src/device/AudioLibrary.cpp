// The audio library's own code; it is compiled here once, without this project's warnings.

#define MINIAUDIO_IMPLEMENTATION
#include "AudioLibrary.h"

#ifdef __SANITIZE_ADDRESS__
// Where no sound server answers, the library drops one connection object of the server's client for good.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libpulse\n";
}
#endif
