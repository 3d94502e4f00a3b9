#include "ShellNotices.h"

#include "DialogDeviceConnect.h"
#include "NoticeBar.h"

ShellNotices::ShellNotices(DialogDeviceConnect &source, NoticeBar *shown)
    : QObject(shown)
    , connection(source)
    , bar(shown)
{
    connect(&connection, &DialogDeviceConnect::onConnect, this, &ShellNotices::tellConnection);
    connect(&connection, &DialogDeviceConnect::onDisconnect, this, &ShellNotices::tellConnection);
    connect(&connection, &DialogDeviceConnect::onReadAll, this, &ShellNotices::tellConnection);
    connect(&connection.workProgress(), &WorkProgress::ended, this, &ShellNotices::tellEnd);
    connect(bar, &NoticeBar::actionChosen, &connection, &DialogDeviceConnect::DoReadAll);
}

void ShellNotices::tellConnection()
{
    if (connection.isConnected())
        show(DeviceTrouble::None);
    else if (connection.openFailure() == OpenFailure::None)
        show(DeviceTrouble::Gone);
    else
        show(devicetrouble::ofFailure(connection.openFailure()));
}

void ShellNotices::tellEnd(WorkProgress::End how)
{
    if (how != WorkProgress::End::Unanswered || !connection.isConnected())
        return;
    // In the middle of a read the pages stay blocked until the next one.
    if (connection.isReadingAll())
        show(DeviceTrouble::Silent);
    else if (connection.workProgress().work() == WorkProgress::Work::Reading && !connection.isCalibrating())
        bar->flash(devicetrouble::advice(DeviceTrouble::Silent));
}

void ShellNotices::show(DeviceTrouble next)
{
    trouble = next;
    retranslate();
}

void ShellNotices::retranslate()
{
    if (trouble == DeviceTrouble::None)
        bar->dismiss();
    else
        bar->showNotice(devicetrouble::advice(trouble),
                        trouble == DeviceTrouble::Silent ? tr("重试") : QString());
}
