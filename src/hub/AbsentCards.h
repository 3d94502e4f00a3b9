#pragma once

#include <QList>

class DeviceList;
class FrameAbsentDevice;
class QBoxLayout;
class QWidget;

/// The cards of the devices that can't be used, behind those that can. GUI thread only.
class AbsentCards
{
public:
    /// \a cardLayout lays out what \a cardParent holds; both must outlive this object's use.
    AbsentCards(QBoxLayout *cardLayout, QWidget *cardParent);

    /// Shows what the last pass brought.
    void refresh(const DeviceList &devices);

private:
    QBoxLayout *layout;
    QWidget *parent;
    QList<FrameAbsentDevice *> cards; ///< children of the parent; kept once made
};
