#pragma once

#include "DeviceTrouble.h"
#include "WorkProgress.h"

#include <QObject>

class DialogDeviceConnect;
class NoticeBar;

/// Says on the pages what keeps their keyboard from being used: that it is gone, can't be opened or doesn't
/// answer. The notice stays until that is over. GUI thread only.
class ShellNotices : public QObject
{
    Q_OBJECT

public:
    /// A child of its bar. \a connection must outlive the object.
    ShellNotices(DialogDeviceConnect &connection, NoticeBar *bar);

    /// Shows the notice again, in the present language.
    void retranslate();

private:
    void tellConnection();
    void tellEnd(WorkProgress::End how);
    void show(DeviceTrouble next);

    DialogDeviceConnect &connection;
    NoticeBar *bar;
    DeviceTrouble trouble = DeviceTrouble::None;
};
