// Stands in for the product's capture of what the machine plays: a fuzzed program must neither look for sound
// servers nor run threads.

#include "LoopbackCapture.h"

struct LoopbackCapture::Session
{
    SampleBlock samples;
};

LoopbackCapture::LoopbackCapture()
    : session(std::make_shared<Session>())
{
}

LoopbackCapture::~LoopbackCapture() = default;

SampleBlock &LoopbackCapture::samples()
{
    return session->samples;
}
