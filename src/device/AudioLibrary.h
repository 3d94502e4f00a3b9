#pragma once

// The audio library with only what the capture needs: devices, and of the systems' interfaces the one that
// can hear what the machine plays. The library's stand-in for a machine without sound is left out, so that
// such a machine is an error instead of a device that is always silent.

#define MA_ENABLE_ONLY_SPECIFIC_BACKENDS
#define MA_ENABLE_WASAPI
#define MA_ENABLE_PULSEAUDIO
#define MA_NO_DECODING
#define MA_NO_ENCODING
#define MA_NO_GENERATION
#define MA_NO_RESOURCE_MANAGER
#define MA_NO_NODE_GRAPH
#define MA_NO_ENGINE

#include <miniaudio.h>
