// The audio library's own code; it is compiled here once, without this project's warnings.

#define MINIAUDIO_IMPLEMENTATION
#include "AudioLibrary.h"
