#pragma once

#include <QFrame>

/// The page on which keys are remapped. GUI thread only.
class FrameKeySetting : public QFrame
{
    Q_OBJECT

public:
    explicit FrameKeySetting(QWidget *parent = nullptr);

    /// Shows what the connection knows of the keyboard; called when the keyboard has been read.
    void RefreshPage();
};
