#include "UhidDevice.h"

#include "ReportDescriptor.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <linux/input.h>
#include <linux/uhid.h>
#include <thread>
#include <unistd.h>

namespace uhid {
namespace {

/// Copies a text into a field of the kernel's, cut to fit with its final 0.
template <std::size_t Size>
void copyText(__u8 (&field)[Size], std::string_view text)
{
    std::copy_n(text.begin(), std::min(text.size(), Size - 1), field);
}

uhid_event createEvent(const Description &description)
{
    uhid_event event{};
    event.type = UHID_CREATE2;
    uhid_create2_req &create = event.u.create2;
    copyText(create.name, description.model.product);
    copyText(create.phys, description.path);
    copyText(create.uniq, description.serial);
    const sim::Bytes descriptor = reportDescriptor(description.channel);
    create.rd_size = static_cast<__u16>(descriptor.size());
    std::ranges::copy(descriptor, create.rd_data);
    create.bus = description.bluetooth ? BUS_BLUETOOTH : BUS_USB;
    create.vendor = description.model.vendorId;
    create.product = description.model.productId;
    create.version = description.model.firmware;
    return event;
}

} // namespace

UhidDevice::UhidDevice(const Description &description, Requests deviceRequests)
    : channel(description.channel)
    , requests(std::move(deviceRequests))
    , file(::open("/dev/uhid", O_RDWR | O_CLOEXEC | O_NONBLOCK))
{
    if (file < 0)
        failSystemCall("/dev/uhid");
    try {
        write(createEvent(description));
    } catch (...) {
        ::close(file);
        throw;
    }
}

UhidDevice::~UhidDevice()
{
    // The kernel takes the device away, and for that waits until no program waits for any HID device: so the
    // others must be able to answer meanwhile.
    std::thread{[file = file] { ::close(file); }}.detach();
}

void UhidDevice::handleEvent()
{
    uhid_event event{};
    if (::read(file, &event, sizeof event) < 0) {
        if (errno == EAGAIN || errno == EINTR)
            return;
        failSystemCall("read from /dev/uhid");
    }
    switch (event.type) {
    case UHID_START:
        requests.started();
        break;
    case UHID_OUTPUT:
        take(event.u.output.rtype == UHID_FEATURE_REPORT, {event.u.output.data, event.u.output.size});
        break;
    case UHID_SET_REPORT:
        answerSet(event);
        break;
    case UHID_GET_REPORT:
        answerGet(event);
        break;
    default:
        break;
    }
}

bool UhidDevice::take(bool feature, sim::ByteView data)
{
    return requests.written(channel.channel, feature, withReportId(channel, feature, data));
}

void UhidDevice::answerSet(const uhid_event &event)
{
    const uhid_set_report_req &request = event.u.set_report;
    const bool taken = take(request.rtype == UHID_FEATURE_REPORT, {request.data, request.size});
    uhid_event reply{};
    reply.type = UHID_SET_REPORT_REPLY;
    reply.u.set_report_reply.id = request.id;
    reply.u.set_report_reply.err = taken ? 0 : EIO;
    write(reply);
}

void UhidDevice::answerGet(const uhid_event &event)
{
    uhid_event reply{};
    reply.type = UHID_GET_REPORT_REPLY;
    uhid_get_report_reply_req &answer = reply.u.get_report_reply;
    answer.id = event.u.get_report.id;
    const auto report = event.u.get_report.rtype == UHID_FEATURE_REPORT
                            ? requests.featureRead(channel.channel)
                            : std::nullopt;
    answer.err = report ? 0 : EIO;
    if (report) {
        answer.size = static_cast<__u16>(std::min<std::size_t>(report->size(), UHID_DATA_MAX));
        std::copy_n(report->begin(), answer.size, answer.data);
    }
    write(reply);
}

void UhidDevice::sendInput(sim::Channel, sim::ByteView report)
{
    uhid_event event{};
    event.type = UHID_INPUT2;
    event.u.input2.size = static_cast<__u16>(std::min<std::size_t>(report.size(), UHID_DATA_MAX));
    std::copy_n(report.begin(), event.u.input2.size, event.u.input2.data);
    write(event);
}

void UhidDevice::write(const uhid_event &event)
{
    if (::write(file, &event, sizeof event) < 0)
        failSystemCall("write to /dev/uhid");
}

} // namespace uhid
