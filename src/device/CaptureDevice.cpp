#include "CaptureDevice.h"

#include "DeviceLog.h"
#include "SampleBlock.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <span>
#include <string>

namespace {

// On the audio thread: one bounded copy and nothing else, so that nothing can hold that thread up.
void takePeriod(ma_device *device, void *, const void *input, ma_uint32 frames)
{
    const auto *samples = static_cast<const float *>(input);
    static_cast<SampleBlock *>(device->pUserData)->store({samples, frames * SampleBlock::Channels});
}

ma_device_config captureConfig(SampleBlock &block)
{
    ma_device_config config = ma_device_config_init(ma_device_type_loopback);
    config.capture.format = ma_format_f32;
    config.capture.channels = SampleBlock::Channels;
    config.sampleRate = 0; // the device's own
    config.dataCallback = takePeriod;
    config.pUserData = &block;
    return config;
}

bool systemHasLoopback()
{
    std::array<ma_backend, MA_BACKEND_COUNT> backends{};
    size_t count = 0;
    ma_get_enabled_backends(backends.data(), backends.size(), &count);
    return std::any_of(backends.begin(), backends.begin() + count, ma_is_loopback_supported);
}

/// The source on which a sound server offers what its default output plays: it has the output's name with
/// an ending.
std::optional<ma_device_id> monitorOfDefaultOutput(ma_context &context)
{
    ma_device_info *outputs = nullptr;
    ma_device_info *inputs = nullptr;
    ma_uint32 outputCount = 0;
    ma_uint32 inputCount = 0;
    if (ma_context_get_devices(&context, &outputs, &outputCount, &inputs, &inputCount) != MA_SUCCESS)
        return {};
    const std::span allOutputs(outputs, outputCount);
    const auto output = std::ranges::find_if(allOutputs, &ma_device_info::isDefault);
    if (output == allOutputs.end())
        return {};
    const std::string monitor = std::string(output->id.pulse) + ".monitor";
    const std::span allInputs(inputs, inputCount);
    const auto input = std::ranges::find(
        allInputs, monitor, [](const ma_device_info &info) { return std::string(info.id.pulse); });
    if (input == allInputs.end())
        return {};
    return input->id;
}

} // namespace

CaptureDevice::CaptureDevice(SampleBlock &block)
    : hasLoopback(systemHasLoopback())
    , audioConfig(captureConfig(block))
{
}

CaptureDevice::~CaptureDevice()
{
    close();
    if (hasContext)
        ma_context_uninit(&context);
}

bool CaptureDevice::open()
{
    const ma_result opened = hasLoopback ? openLoopback() : openMonitor();
    if (opened != MA_SUCCESS) {
        qCCritical(lcAudio, "ma_device_init ERROR --------");
        qCInfo(lcAudio) << "No sound to capture:" << ma_result_description(opened);
    }
    const ma_result started = ma_device_start(&audioDevice);
    if (opened == MA_SUCCESS && started != MA_SUCCESS)
        qCWarning(lcAudio) << "The sound can't be captured:" << ma_result_description(started);
    return opened == MA_SUCCESS;
}

void CaptureDevice::followOutput()
{
    if (hasLoopback)
        return;
    const std::optional<ma_device_id> wanted = monitorOfDefaultOutput(context);
    if (!wanted || std::strcmp(wanted->pulse, monitor.pulse) == 0)
        return;
    close();
    ma_result result = openMonitorOf(*wanted);
    if (result == MA_SUCCESS)
        result = ma_device_start(&audioDevice);
    qCInfo(lcAudio) << "Sound is now captured from" << monitor.pulse << "-" << ma_result_description(result);
}

ma_result CaptureDevice::openLoopback()
{
    return ma_device_init(nullptr, &audioConfig, &audioDevice);
}

ma_result CaptureDevice::openMonitor()
{
    ma_context_config contextConfig = ma_context_config_init();
    contextConfig.pulse.pApplicationName = "OrbeHub";
    const ma_result result = ma_context_init(nullptr, 0, &contextConfig, &context);
    if (result != MA_SUCCESS)
        return result;
    hasContext = true;
    const std::optional<ma_device_id> found = monitorOfDefaultOutput(context);
    return found ? openMonitorOf(*found) : MA_NO_DEVICE;
}

// With the source named, the server never moves the capture to another one, which may be a microphone.
ma_result CaptureDevice::openMonitorOf(const ma_device_id &id)
{
    monitor = id;
    audioConfig.deviceType = ma_device_type_capture;
    audioConfig.capture.pDeviceID = &monitor;
    return ma_device_init(&context, &audioConfig, &audioDevice);
}

void CaptureDevice::close()
{
    if (ma_device_get_state(&audioDevice) == ma_device_state_uninitialized)
        return;
    // A sound server's device would wait here for its next period, which doesn't come from a dead output.
    if (!hasLoopback)
        ma_device_stop(&audioDevice);
    ma_device_uninit(&audioDevice);
}
